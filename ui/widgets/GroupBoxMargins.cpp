#include "ui/widgets/GroupBoxMargins.h"

#include <QGroupBox>
#include <QLayout>

namespace {
constexpr int Margin = 10;
}

void GroupBoxMargins::apply(const QWidget& widget)
{
    const auto groupBoxes = widget.findChildren<QGroupBox*>();
    for (const QGroupBox* groupBox : groupBoxes) {
        if (QLayout* layout = groupBox->layout()) {
            layout->setContentsMargins(Margin, Margin, Margin, Margin);
        }
    }
}
