#pragma once

#include <QFrame>
#include <QMap>
#include <QVariant>

class Ui_DialogPreferences;
class WindowPlacement;

/// The preferences panel: a control for each setting, and no settings of its own. Without an OK button: every
/// change is announced at once.
class DialogPreferences : public QFrame
{
    Q_OBJECT

public:
    explicit DialogPreferences(QWidget *parent);
    ~DialogPreferences() override;

    /// Shows a record in the controls without SettingChanged(). A missing key reads as false, 0 or 0.0.
    void SetSettings(const QMap<QString, QVariant> &settings);

    /// A complete record, all eleven keys with their exact variant types, read from the controls.
    QMap<QString, QVariant> GetSettings() const;

    /// Puts the panel beside a window that is kept on top and would cover it.
    void PlaceBeside(const QWidget *other);

signals:
    void SettingChanged();

private:
    Ui_DialogPreferences *ui;
    WindowPlacement *placement;
};
