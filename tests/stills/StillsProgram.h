#pragma once

#include "tests/support/RunProgram.h"
#include "tests/support/TestDir.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>

/// Starts the program `stills` as users do, and inspects its results.
namespace stillsprogram {

using testsupport::contentOf;

/// 100 frames, 25 a second.
inline const QString shortSample = QStringLiteral("h264_bframes.mp4");

/// The program's path.
[[nodiscard]] QString program();

/// A machine without a display and with a neutral locale.
[[nodiscard]] QProcessEnvironment environment();

/// Runs the program until it ends.
[[nodiscard]] testsupport::ProgramResult run(const QStringList& arguments);

/// Runs it with `--json` and `-o folder`; there must be no messages other than those of the
/// objects.
[[nodiscard]] testsupport::ProgramResult runJson(const QStringList& arguments,
                                                 const QString& folder);

/// The objects on standard output; ends the test program if a line is not an object.
[[nodiscard]] QList<QJsonObject> objects(const QByteArray& output);

/// The objects of one type.
[[nodiscard]] QList<QJsonObject> objects(const QByteArray& output, const QString& type);

/// The names of all files in the folder, including hidden ones, sorted.
[[nodiscard]] QStringList filesIn(const QString& folder);

/// The words of a text, as arguments.
[[nodiscard]] QStringList words(const char* text);

/// The numbers in the pictures of a folder, by name; -1 for a picture without a readable one.
[[nodiscard]] QList<int> numbersIn(const QString& folder);

/// A process that can be interrupted regardless of how the tests were started.
class InterruptibleProcess : public QProcess
{
public:
    /// Starts the program.
    explicit InterruptibleProcess(const QStringList& arguments);
    ~InterruptibleProcess() override;

    /// Waits until a file is in the folder; false after a time limit.
    [[nodiscard]] bool waitForFileIn(const QString& folder);
};

} // namespace stillsprogram
