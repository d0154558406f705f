#pragma once

#include <QtGlobal>

#if QT_VERSION_MAJOR < 6
#include <QTextCodec>
#endif

namespace stills {

#if QT_VERSION_MAJOR < 6
/// File names as Qt's texts, and back, without loss: UTF-8, and each byte that is none as a lone
/// surrogate, U+DC80 to U+DCFF. Where it is the codec of the locale, QFile, QDir and all that goes
/// through QFile::encodeName() work with any name that a file system can hold, in any locale.
class FileNameCodec : public QTextCodec
{
public:
    /// Whether all names can be told.
    static constexpr bool isWhole = true;

    /// Makes one the codec of the locale. Before the application object; Qt owns and ends it.
    static void install();

    [[nodiscard]] QByteArray name() const override;
    [[nodiscard]] int mibEnum() const override;

protected:
    QString convertToUnicode(const char* bytes, int length, ConverterState* state) const override;
    QByteArray convertFromUnicode(const QChar* text, int length,
                                  ConverterState* state) const override;
};
#else
/// Qt 6 takes file names for UTF-8 and lets nobody in between: there, names that are none cannot be
/// opened, and are told as files that do not exist.
class FileNameCodec
{
public:
    static constexpr bool isWhole = false;
    static void install() {}
};
#endif

} // namespace stills
