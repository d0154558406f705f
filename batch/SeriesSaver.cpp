#include "batch/SeriesSaver.h"

#include "imaging/FilePublisher.h"

#include <QFileInfo>

#include <utility>

SeriesSaver::SeriesSaver(Target target, Listener listener)
    : m_target(std::move(target))
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
    QString path = firstPath();
    WriteResult result = WriteResult::AlreadyExists;
    for (;; path = nextPath()) {
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

QString SeriesSaver::firstPath()
{
    if (m_target.isSingle) {
        const QString path = m_target.folder.filePath(
            m_target.naming.fileName(m_target.videoBaseName, OutputNaming::noCounter));
        if (!QFileInfo::exists(path)) {
            return path;
        }
    }
    return nextPath();
}

QString SeriesSaver::nextPath()
{
    QString path;
    do {
        path =
            m_target.folder.filePath(m_target.naming.fileName(m_target.videoBaseName, m_counter++));
    } while (QFileInfo::exists(path));
    return path;
}
