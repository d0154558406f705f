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

/// Carries out the requests of a SoundState on the thread that it is created on.
class SoundWorker : public QObject
{
    Q_OBJECT

public:
    /// @param state  must outlive the worker.
    SoundWorker(SoundState& state, SoundDevice::Factory makeDevice);
    ~SoundWorker() override;

    /// Carries out requests until they end.
    void run();

public Q_SLOTS:
    /// Handles the current request.
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
    SoundState::Wish m_done; ///< the request that has been carried out
    std::unique_ptr<SoundFile> m_file;
    std::unique_ptr<Source> m_source;
    std::unique_ptr<SoundDevice> m_device;
    double m_lastHeard = 0.0;                        ///< since the device was started
    std::chrono::steady_clock::time_point m_movedAt; ///< when it last increased
    QTimer m_clock;
    QEventLoop m_loop;
};

} // namespace QtAV
