#include "ui/theme/LineIconEngine.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <memory>

namespace {

QPixmap drawn(const QString& file, const QSize& size, const QColor& colour)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(file);
    QPainter painter(&image);
    const int edge = std::min(size.width(), size.height());
    QRect place(0, 0, edge, edge);
    place.moveCenter(image.rect().center());
    renderer.render(&painter, place);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour);
    painter.end();
    return QPixmap::fromImage(image);
}

} // namespace

LineIconEngine::LineIconEngine(const QString& name, theme::Ink ink)
    : m_name(name)
    , m_ink(ink)
{}

QString LineIconEngine::fileOf(const QString& name)
{
    return QStringLiteral(":/Icons/%1.icon").arg(name);
}

void LineIconEngine::addFile(const QString& fileName, const QSize& size, QIcon::Mode mode,
                             QIcon::State state)
{
    Q_UNUSED(size)
    Q_UNUSED(mode)
    Q_UNUSED(state)
    m_name = QFileInfo(fileName).completeBaseName();
}

QColor LineIconEngine::colour(QIcon::Mode mode) const
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) {
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    }
    if (mode == QIcon::Selected || m_ink == theme::Ink::Accent) {
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    }
    const bool isQuiet = m_ink == theme::Ink::Quiet;
    return palette.color(QPalette::Active,
                         isQuiet ? QPalette::PlaceholderText : QPalette::ButtonText);
}

void LineIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                           QIcon::State state)
{
    const double ratio = painter->device()->devicePixelRatioF();
    QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
    picture.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.topLeft(), picture);
}

QPixmap LineIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    Q_UNUSED(state)
    if (size.isEmpty()) {
        return {};
    }
    const QColor ink = colour(mode);
    const QString key = QStringLiteral("LineIcon/%1/%2x%3/%4")
                            .arg(m_name)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ink.rgba(), 0, 16);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = drawn(fileOf(m_name), size, ink);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

QIconEngine* LineIconEngine::clone() const
{
    return std::make_unique<LineIconEngine>(*this).release();
}

QString LineIconEngine::key() const
{
    return QStringLiteral("LineIconEngine");
}

#if QT_VERSION_MAJOR < 6
QString LineIconEngine::iconName() const
#else
QString LineIconEngine::iconName()
#endif
{
    return m_name;
}

#if QT_VERSION_MAJOR >= 6
bool LineIconEngine::isNull()
{
    return m_name.isEmpty();
}
#endif
