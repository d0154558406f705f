#pragma once

#include <QCheckBox>

/// A check box whose partial state ("several values") is only set by the program: clicks toggle
/// between checked and unchecked, and turn partially checked into checked.
class FixTristateCheckbox : public QCheckBox
{
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;

protected:
    void nextCheckState() override;
};
