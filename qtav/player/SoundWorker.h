#pragma once

#include "qtav/player/SoundDevice.h"
#include "qtav/player/SoundFile.h"
#include "qtav/player/SoundState.h"

#include <QEventLoop>
#include <QIODevice>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

namespace QtAV {

/// Carries out a SoundState's wishes on the thread that it is made on.
class SoundWorker : public QObject
{
    Q_OBJECT

public:
    /// @param state  is to outlive the worker.
    SoundWorker(SoundState& state, SoundDevice::Factory makeDevice);
    ~SoundWorker() override;

    /// Carries out what is wished until the wishes are over.
    void run();

public Q_SLOTS:
    /// Looks at what is wished now.
    void heed();

private:
    class Source;

    void carryOut(const SoundState::Wish& wish);
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
    QEventLoop m_loop;
};

} // namespace QtAV
