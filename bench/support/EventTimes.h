#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QVector>

#include <string>

namespace bench {

/// An application that measures how long each event occupies the user-interface thread.
///
/// It measures stretches of work: from the beginning of an event to its end, or to the beginning of
/// another event in a loop that it runs itself, as a dialog does. Waiting for events does not
/// count. A stretch is identified by the class of the receiver and the type of its event.
class EventTimes : public QApplication
{
public:
    EventTimes(int& argc, char** argv);

    /// A stretch of work.
    struct Work
    {
        double ms = 0.0;
        double processorMs = 0.0; ///< the part for which the thread had a processor
        std::string what;
    };

    /// The longest stretches since the last call, the longest first.
    struct Summary
    {
        int events = 0;
        int above = 0;         ///< number that were longer than limitMs
        QVector<Work> longest; ///< at most five
    };
    [[nodiscard]] Summary take();

    static constexpr double limitMs = 50.0;

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void begin(const std::string& what);
    void end();

    QElapsedTimer m_timer;
    double m_processorMs = 0.0; ///< of the thread, at the start of the stretch
    bool m_isWorking = false;
    int m_loopLevel = 0; ///< of the current event
    std::string m_what;
    Summary m_summary;
};

} // namespace bench
