#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <list>

class QWidget;

namespace testsupport {

/// Answers the modal dialogs that the code under test opens, in the order in which they are
/// expected.
///
/// Each step waits until a dialog of its class is the active modal one. An unexpected dialog, or
/// one that is still open at the time limit, is closed so that the case ends, and isDone() stays
/// false. Create it on the case's stack before the object that opens the dialogs.
class ModalScript : public QObject
{
    Q_OBJECT

public:
    ModalScript();

    /// Calls `answer`, which should close the dialog, once the next dialog is a `Dialog`.
    template <typename Dialog>
    void expect(const std::function<void(Dialog&)>& answer)
    {
        const auto fits = [](QWidget& widget) { return qobject_cast<Dialog*>(&widget) != nullptr; };
        m_steps.push_back({fits, [answer](QWidget& widget) {
                               if (auto* const dialog = qobject_cast<Dialog*>(&widget)) {
                                   answer(*dialog);
                               }
                           }});
    }

    /// Whether all expected dialogs came, and no other.
    [[nodiscard]] bool isDone() const { return m_steps.empty() && !m_failed; }

private:
    struct Step
    {
        std::function<bool(QWidget&)> fits;
        std::function<void(QWidget&)> answer;
    };

    void look();
    void answerNext();

    std::list<Step> m_steps;
    bool m_answering = false;
    QTimer m_timer;
    QElapsedTimer m_sinceProgress;
    bool m_failed = false;
};

} // namespace testsupport
