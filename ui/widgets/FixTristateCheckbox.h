#pragma once

#include <QCheckBox>

/// A check box whose partial state ("several values") only the program sets: clicks go between
/// checked and unchecked, and make a partially checked box checked.
class FixTristateCheckbox : public QCheckBox
{
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;

protected:
    void nextCheckState() override;
};
