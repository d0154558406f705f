#pragma once

#include <QObject>
#include <QRunnable>

#include <atomic>

/// Work that can be interrupted.
///
/// Interruption is cooperative: the work checks isInterruptionRequested() between its steps and
/// returns early. A worker cannot be resumed.
///
/// Owned by its QObject parent, not by a thread pool.
class Worker : public QObject, public QRunnable
{
    Q_OBJECT

public:
    explicit Worker(QObject* parent = nullptr);

    /// Makes the work stop at its next step and returns at once. From any thread.
    void requestInterruption();
    /// From any thread.
    bool isInterruptionRequested() const { return m_interruption != 0; }

private:
    std::atomic<int> m_interruption{0};
};
