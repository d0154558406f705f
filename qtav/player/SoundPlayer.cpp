#include "qtav/player/SoundPlayer.h"

#include "qtav/player/SoundWorker.h"

#include <QThread>

namespace QtAV {

/// The thread is started for the first file with sound.
class SoundPlayer::Private
{
public:
    ~Private();
    void ensureThread();
    void wake() const;

    SoundState state;
    QThread thread;
    SoundWorker* worker = nullptr; ///< lives in the thread, which deletes it at its end
};

void SoundPlayer::Private::ensureThread()
{
    if (worker)
        return;
    worker = new SoundWorker(state);
    worker->moveToThread(&thread);
    QObject::connect(&thread, &QThread::finished, worker, &QObject::deleteLater);
    thread.setObjectName(QStringLiteral("sound"));
    thread.start();
}

SoundPlayer::Private::~Private()
{
    thread.quit();
    thread.wait();
}

void SoundPlayer::Private::wake() const
{
    if (worker)
        QMetaObject::invokeMethod(worker, "heed", Qt::QueuedConnection);
}

SoundPlayer::SoundPlayer()
    : d(std::make_unique<Private>())
{}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::open(const QString& path)
{
    d->ensureThread();
    d->state.change([&path](SoundState::Wish& wish) { wish.path = path; });
    d->wake();
}

void SoundPlayer::close()
{
    d->state.change([](SoundState::Wish& wish) {
        wish.path.clear();
        wish.plays = false;
        ++wish.playSerial;
    });
    d->wake();
}

void SoundPlayer::play(double seconds)
{
    d->state.change([seconds](SoundState::Wish& wish) {
        wish.plays = true;
        wish.from = seconds;
        ++wish.playSerial;
    });
    d->wake();
}

void SoundPlayer::pause()
{
    d->state.change([](SoundState::Wish& wish) {
        wish.plays = false;
        ++wish.playSerial;
    });
    d->wake();
}

void SoundPlayer::setVolume(qreal volume)
{
    d->state.change([volume](SoundState::Wish& wish) { wish.volume = volume; });
    d->wake();
}

std::optional<double> SoundPlayer::position() const
{
    return d->state.heard();
}

} // namespace QtAV
