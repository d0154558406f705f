#include "ui/widgets/FixTristateCheckbox.h"

void FixTristateCheckbox::nextCheckState()
{
    // Not isChecked(), which is true for the partial state as well.
    setCheckState(checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}
