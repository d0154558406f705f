#include "tests/ui/dialogs/support/ModalScript.h"

#include <QApplication>
#include <QDialog>

using testsupport::ModalScript;

namespace {
constexpr int lookIntervalMs = 10;
constexpr qint64 patienceMs = 20000;
} // namespace

ModalScript::ModalScript()
{
    connect(&m_timer, &QTimer::timeout, this, &ModalScript::look);
    m_timer.start(lookIntervalMs);
    m_sinceProgress.start();
}

void ModalScript::look()
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (m_answering || !modal || !modal->isVisible()) {
        return;
    }
    if (!m_steps.empty() && m_steps.front().fits(*modal)) {
        // Not from here: a timer does not fire while its slot runs, and the slot may open the next
        // dialog.
        m_answering = true;
        QMetaObject::invokeMethod(this, &ModalScript::answerNext, Qt::QueuedConnection);
    } else if (m_sinceProgress.hasExpired(patienceMs)) {
        m_failed = true;
        if (auto* const dialog = qobject_cast<QDialog*>(modal)) {
            dialog->reject();
        }
    }
}

void ModalScript::answerNext()
{
    const Step step = m_steps.front();
    m_steps.pop_front();
    m_answering = false;
    m_sinceProgress.restart();
    if (QWidget* const modal = QApplication::activeModalWidget()) {
        step.answer(*modal);
    }
}
