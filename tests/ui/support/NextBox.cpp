#include "tests/ui/support/NextBox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>
#include <QTimer>

namespace testsupport {

void answerNextBox(QMessageBox::StandardButton button, SeenBox& seen)
{
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, button, &seen] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            return;
        }
        timer->deleteLater();
        timer->stop();
        seen = {box->windowTitle(),
                box->text(),
                box->informativeText(),
                box->standardButtons(),
                box->standardButton(box->defaultButton()),
                box->parentWidget()};
        box->button(button)->click();
    });
    timer->start(10);
}

} // namespace testsupport
