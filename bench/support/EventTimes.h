#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QVector>

#include <string>

namespace bench {

/// An application that measures how long each event keeps the user-interface thread.
///
/// What is measured are stretches of work: an event up to its end, or up to the beginning of
/// another one in a loop that it runs itself, as a dialog does. Waiting for events does not count.
/// What a stretch is told by is the class of the receiver and the type of its event.
class EventTimes : public QApplication
{
public:
    EventTimes(int& argc, char** argv);

    /// A stretch of work.
    struct Work
    {
        double ms = 0.0;
        double processorMs = 0.0; ///< of that, in which the thread had a processor
        std::string what;
    };

    /// The longest stretches since the last call, the longest first.
    struct Summary
    {
        int events = 0;
        int above = 0;         ///< longer than limitMs
        QVector<Work> longest; ///< five at most
    };
    [[nodiscard]] Summary take();

    static constexpr double limitMs = 50.0;

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void begin(const std::string& what);
    void end();

    QElapsedTimer m_timer;
    double m_processorMs = 0.0; ///< of the thread, when the stretch began
    bool m_isWorking = false;
    int m_loopLevel = 0; ///< of the event that runs
    std::string m_what;
    Summary m_summary;
};

} // namespace bench
