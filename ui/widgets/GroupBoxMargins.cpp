#include "ui/widgets/GroupBoxMargins.h"

#include <QGroupBox>
#include <QLayout>

namespace {
constexpr int margin = 10;
}

void GroupBoxMargins::apply(const QWidget& widget)
{
    const auto groupBoxes = widget.findChildren<QGroupBox*>();
    for (const QGroupBox* groupBox : groupBoxes) {
        if (QLayout* layout = groupBox->layout()) {
            layout->setContentsMargins(margin, margin, margin, margin);
        }
    }
}
