#pragma once

#include "tests/support/RunProgram.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>

/// Starts the program `stills` as users do, and looks at what it leaves.
namespace stillsprogram {

/// 100 frames, 25 a second.
inline const QString shortSample = QStringLiteral("h264_bframes.mp4");

/// The program's path.
[[nodiscard]] QString program();

/// A machine without a display and in no country's language.
[[nodiscard]] QProcessEnvironment environment();

/// Runs the program to its end.
[[nodiscard]] testsupport::ProgramResult run(const QStringList& arguments);

/// Runs it with `--json` and `-o folder`, and expects no message beside the objects' own.
[[nodiscard]] testsupport::ProgramResult runJson(const QStringList& arguments,
                                                 const QString& folder);

/// The objects on standard output; ends the test program where a line is none.
[[nodiscard]] QList<QJsonObject> objects(const QByteArray& output);

/// Those of one type.
[[nodiscard]] QList<QJsonObject> objects(const QByteArray& output, const QString& type);

/// The names of all files in the folder, hidden ones too, in order.
[[nodiscard]] QStringList filesIn(const QString& folder);

/// The bytes of a file; none where it cannot be read.
[[nodiscard]] QByteArray contentOf(const QString& path);

/// The words of a text, as arguments.
[[nodiscard]] QStringList words(const char* text);

/// The numbers in the pictures of a folder, by name; -1 for a picture without a readable one.
[[nodiscard]] QList<int> numbersIn(const QString& folder);

/// A process that can be interrupted however the tests themselves were started.
class InterruptibleProcess : public QProcess
{
public:
    /// Starts the program.
    explicit InterruptibleProcess(const QStringList& arguments);
    ~InterruptibleProcess() override;

    /// Waits until a file is in the folder; false after a while.
    [[nodiscard]] bool waitForFileIn(const QString& folder);
};

} // namespace stillsprogram
