#pragma once

#include <QByteArray>

#include <xcb/xcb.h>

/// Qt's connection to the X server; null on other platforms.
xcb_connection_t *XcbConnection();

/// The atom of that name; XCB_ATOM_NONE if the server has gone.
xcb_atom_t XcbAtom(const QByteArray &name);
