#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

/// Calls functions in the thread to which this object belongs, in the order in which they were
/// posted. Other threads use it to hand over their results, which the functions hold.
///
/// The queue of Qt's events could carry them, too, but thread sanitizer does not see its locks and
/// would report races that are none.
///
/// The thread needs an event loop. Functions that were not called before the destruction never are;
/// no other thread may post any more by then.
class CallQueue : public QObject
{
    Q_OBJECT

public:
    explicit CallQueue(QObject* parent = nullptr);
    ~CallQueue() override;

    /// From any thread; returns at once. The function is never called by post() itself, must not
    /// throw, and may destroy this object.
    void post(std::function<void()> function);

private:
    Q_INVOKABLE void callNext();

    std::mutex m_mutex;
    std::deque<std::function<void()>> m_functions; ///< guarded by m_mutex
};
