#include "ui/mainwindow/NaturalOrder.h"

#include <QStringView>

#include <algorithm>

namespace {

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// The longest part of the text from a position on that consists only of digits or only of other
/// characters.
QStringView runAt(const QString& text, int from)
{
    const bool isNumber = isDigit(text.at(from));
    int end = from + 1;
    while (end < text.size() && isDigit(text.at(end)) == isNumber) {
        ++end;
    }
    return QStringView(text).mid(from, end - from);
}

QStringView withoutLeadingZeros(QStringView digits)
{
    while (digits.size() > 1 && digits.first() == QLatin1Char('0')) {
        digits = digits.mid(1);
    }
    return digits;
}

/// Compares by value; numbers may have any length.
int compareNumbers(QStringView a, QStringView b)
{
    const QStringView left = withoutLeadingZeros(a);
    const QStringView right = withoutLeadingZeros(b);
    if (left.size() != right.size()) {
        return left.size() < right.size() ? -1 : 1;
    }
    return left.compare(right);
}

} // namespace

NaturalOrder::NaturalOrder()
{
    m_letters.setCaseSensitivity(Qt::CaseInsensitive);
}

bool NaturalOrder::operator()(const QString& a, const QString& b) const
{
    const int order = compare(a, b);
    return order == 0 ? a < b : order < 0;
}

int NaturalOrder::compare(const QString& a, const QString& b) const
{
    int i = 0;
    int j = 0;
    while (i < a.size() && j < b.size()) {
        const QStringView left = runAt(a, i);
        const QStringView right = runAt(b, j);
        const bool areNumbers = isDigit(left.first()) && isDigit(right.first());
        const int order = areNumbers ? compareNumbers(left, right)
                                     : m_letters.compare(left.toString(), right.toString());
        if (order != 0) {
            return order;
        }
        i += static_cast<int>(left.size());
        j += static_cast<int>(right.size());
    }
    const int leftOver = a.size() - i;
    const int rightOver = b.size() - j;
    return leftOver - rightOver;
}
