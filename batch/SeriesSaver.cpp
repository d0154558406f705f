#include "batch/SeriesSaver.h"

#include "imaging/FilePublisher.h"

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
    WriteResult result = WriteResult::AlreadyExists;
    for (;; path = m_paths.next()) {
        m_listener.saving(path);
        result = FilePublisher::publish(path, picture.content, ExistingFile::Keep);
        if (result != WriteResult::AlreadyExists) {
            break;
        }
    }
    if (result == WriteResult::Written) {
        m_listener.saved(picture.image);
    } else {
        m_listener.notSaved(path);
    }
}

void SeriesSaver::end(int /*video*/, const QString& error)
{
    if (!error.isEmpty()) {
        m_listener.failed(error);
    }
}
