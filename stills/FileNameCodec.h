#pragma once

#include <QtGlobal>

#if QT_VERSION_MAJOR < 6
#include <QTextCodec>
#endif

namespace stills {

#if QT_VERSION_MAJOR < 6
/// Converts file names to Qt's texts and back without loss: as UTF-8, with each invalid byte as a
/// lone surrogate, U+DC80 to U+DCFF. When it is the codec of the locale, QFile, QDir and everything
/// that uses QFile::encodeName() work with any name that a file system can hold, in any locale.
class FileNameCodec : public QTextCodec
{
public:
    /// Whether all names can be represented.
    static constexpr bool isWhole = true;

    /// Sets it as the codec of the locale. Call it before the application object is created; Qt
    /// owns and deletes it.
    static void install();

    [[nodiscard]] QByteArray name() const override;
    [[nodiscard]] int mibEnum() const override;

protected:
    QString convertToUnicode(const char* bytes, int length, ConverterState* state) const override;
    QByteArray convertFromUnicode(const QChar* text, int length,
                                  ConverterState* state) const override;
};
#else
/// Qt 6 treats file names as UTF-8 without a hook: other names cannot be opened there, and are
/// reported as files that do not exist.
class FileNameCodec
{
public:
    static constexpr bool isWhole = false;
    static void install() {}
};
#endif

} // namespace stills
