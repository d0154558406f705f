#pragma once

#include <QDialog>
#include <QFont>
#include <QSize>
#include <QStringList>

namespace testsupport {

/// The smallest supported size: a screen of 800 by 600 minus a title bar, with letters 1.5 times
/// the usual size.
constexpr QSize smallScreen{800, 560};
constexpr double largeFont = 1.5;

/// Sets the program's style sheet, and enlarges its fonts by a factor; reverts both in the
/// destructor.
class ProgramLook
{
public:
    explicit ProgramLook(double fontFactor);
    ~ProgramLook();
    ProgramLook(const ProgramLook&) = delete;
    ProgramLook& operator=(const ProgramLook&) = delete;

private:
    QFont m_font;
};

/// The visible widgets that cannot show their whole text in the room that they have.
[[nodiscard]] QStringList cutOff(const QDialog& dialog);

/// Shows the dialog at its least size and says what does not fit: what is cut off, and the size
/// where that is larger than the small screen. Empty where all is well.
[[nodiscard]] QString misfits(QDialog& dialog);

} // namespace testsupport
