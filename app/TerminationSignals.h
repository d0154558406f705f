#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>

/// Has the program end in good order when the system asks it to: by SIGTERM, SIGINT or SIGHUP. A
/// second signal ends it at once.
///
/// One object a process, in the user-interface thread, which needs an event loop. Its end restores
/// what the signals did before.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    /// @param end  called once from the event loop
    explicit TerminationSignals(std::function<void()> end, QObject* parent = nullptr);
    ~TerminationSignals() override;

    /// False where the system gives no pipe; signals then do what they ever did.
    [[nodiscard]] bool isListening() const { return m_notifier != nullptr; }

private:
    void answer();

    const std::function<void()> m_end;
    QSocketNotifier* m_notifier = nullptr;
    int m_pipe[2] = {-1, -1};
};
