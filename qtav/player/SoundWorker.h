#pragma once

#include "qtav/player/SoundDevice.h"
#include "qtav/player/SoundFile.h"

#include <QIODevice>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>

namespace QtAV {

/// What a SoundPlayer wants, and what its thread has made of it. Of both threads.
class SoundState
{
public:
    struct Wish
    {
        QString path;           ///< empty for no file
        quint64 playSerial = 0; ///< changes with every play() and pause()
        bool plays = false;
        double from = 0.0; ///< in seconds
        qreal volume = 1.0;
    };

    Wish wish() const;
    /// Changes the wish by a function of it.
    template <typename Change>
    void change(Change change)
    {
        const std::lock_guard lock(m_mutex);
        change(m_wish);
    }

    void setHeard(quint64 playSerial, std::optional<double> seconds);
    /// What is heard now of what was wished last.
    std::optional<double> heard() const;

private:
    mutable std::mutex m_mutex;
    // Guarded by m_mutex.
    Wish m_wish;
    quint64 m_heardSerial = 0;
    std::optional<double> m_heard;
    std::chrono::steady_clock::time_point m_heardAt;
};

/// Carries out a SoundState's wishes, on the thread that it lives in. Made on the owner's thread,
/// from where it takes the way to make devices.
class SoundWorker : public QObject
{
    Q_OBJECT

public:
    explicit SoundWorker(SoundState& state);
    ~SoundWorker() override;

public Q_SLOTS:
    /// Looks at what is wished now.
    void heed();

private:
    class Source;

    void openFile(const QString& path);
    void start(const SoundState::Wish& wish);
    void stopDevice();
    void tellTime();
    [[nodiscard]] bool isOver(double heardSeconds);

    SoundState& m_state;
    const SoundDevice::Factory m_makeDevice;
    SoundState::Wish m_done; ///< the wish that has been carried out
    std::unique_ptr<SoundFile> m_file;
    std::unique_ptr<Source> m_source;
    std::unique_ptr<SoundDevice> m_device;
    double m_lastHeard = 0.0;                        ///< since the device's start
    std::chrono::steady_clock::time_point m_movedAt; ///< when it was less for the last time
    QTimer m_clock;
};

} // namespace QtAV
