#include "batch/SeriesSaver.h"

#include <utility>

SeriesSaver::SeriesSaver(FreePaths paths, bool isSingle, Listener listener)
    : m_paths(std::move(paths))
    , m_isSingle(isSingle)
    , m_listener(std::move(listener))
{}

void SeriesSaver::begin(const SeriesFacts& facts)
{
    m_listener.expecting(facts.expected.value_or(0));
}

void SeriesSaver::take(SeriesPicture picture)
{
    m_listener.beforePicture();
    if (!picture.error.isEmpty()) {
        m_listener.failed(picture.error);
        return;
    }
    m_listener.showing(picture.baseLayer);
    QString path = m_paths.first(m_isSingle);
    WriteFailure failure;
    if (save(path, picture.content, failure) == WriteResult::Written) {
        m_listener.saved(picture.image);
    } else {
        m_listener.notSaved(failure);
    }
}

/// Under the next free name while others take the names, and once more when there may be room.
WriteResult SeriesSaver::save(QString& path, const QByteArray& content, WriteFailure& failure)
{
    m_listener.saving(path);
    for (;;) {
        const auto result = FilePublisher::publish(path, content, ExistingFile::Keep, &failure);
        if (result == WriteResult::AlreadyExists) {
            path = m_paths.next();
            m_listener.saving(path);
        } else if (result == WriteResult::Written || !failure.isLackOfRoom() ||
                   !m_listener.lacksRoom(failure)) {
            return result;
        }
    }
}

void SeriesSaver::end(int /*video*/, const QString& error)
{
    if (!error.isEmpty()) {
        m_listener.failed(error);
    }
}
