#include "qtav/player/SoundPlayer.h"

namespace QtAV {

class SoundPlayer::Private
{};

SoundPlayer::SoundPlayer() = default;
SoundPlayer::~SoundPlayer() = default;
void SoundPlayer::open(const QString&)
{}
void SoundPlayer::close()
{}
void SoundPlayer::play(double)
{}
void SoundPlayer::pause()
{}
void SoundPlayer::setVolume(qreal)
{}
std::optional<double> SoundPlayer::position() const
{
    return std::nullopt;
}

} // namespace QtAV
