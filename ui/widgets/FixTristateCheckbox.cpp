#include "ui/widgets/FixTristateCheckbox.h"

void FixTristateCheckbox::nextCheckState()
{
    // Not isChecked(), which is also true for the partial state.
    setCheckState(checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}
