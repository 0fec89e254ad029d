#pragma once

#include <QString>

namespace Global {

/// The directory of the bundled helpers and catalogues: the executable's directory, one up, then Resources.
/// Absolute, no trailing slash. Needs an application object. A directory that is not there is not an error:
/// its files are simply missing.
QString BundledResourcesDirectory();

} // namespace Global
