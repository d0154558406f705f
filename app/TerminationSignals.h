#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>

/// Ends the program in good order on SIGTERM, SIGINT or SIGHUP. A second signal ends it at once.
///
/// One object per process, in the user-interface thread, which needs an event loop. The destructor
/// restores the previous signal handlers.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    /// @param end  called once from the event loop
    explicit TerminationSignals(std::function<void()> end, QObject* parent = nullptr);
    ~TerminationSignals() override;

    /// False if the system provides no pipe; signals then keep their previous effect.
    [[nodiscard]] bool isListening() const { return m_notifier != nullptr; }

private:
    void answer();

    const std::function<void()> m_end;
    QSocketNotifier* m_notifier = nullptr;
    int m_pipe[2] = {-1, -1};
};
