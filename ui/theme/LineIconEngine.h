#pragma once

#include "ui/theme/Icons.h"

#include <QIconEngine>
#include <QString>

/// Draws a line icon in a colour of the application's palette.
class LineIconEngine : public QIconEngine
{
public:
    LineIconEngine() = default;
    LineIconEngine(const QString& name, theme::Ink ink);

    [[nodiscard]] static QString fileOf(const QString& name);

    void addFile(const QString& fileName, const QSize& size, QIcon::Mode mode,
                 QIcon::State state) override;
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    /// @param size  in screen pixels
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    QString key() const override;
#if QT_VERSION_MAJOR < 6
    QString iconName() const override;
#else
    QString iconName() override;
    bool isNull() override;
#endif

private:
    [[nodiscard]] QColor colour(QIcon::Mode mode) const;

    QString m_name;
    theme::Ink m_ink = theme::Ink::Text;
};
