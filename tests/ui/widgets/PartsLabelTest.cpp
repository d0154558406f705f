#include "ui/widgets/PartsLabel.h"

#include <QTest>

#include <type_traits>

class PartsLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_breakOnlyBetweenParts();
    void text_isOneLine_whereThereIsRoom();
    void text_breaksBetweenWords_whereAPartIsTooWide();
    void text_isNotChanged();
};

namespace {

const QString words = QStringLiteral("640 × 360 · JPEG 90");

/// How a label of this size paints the words; a PartsLabel with a separator.
template <typename Label>
QImage paintedBy(const QString& shown, const QSize& size)
{
    Label label;
    label.setWordWrap(true);
    label.setTextFormat(Qt::PlainText);
    if constexpr (std::is_same_v<Label, PartsLabel>) {
        label.setSeparator(QStringLiteral(" · "));
    }
    label.setText(shown);
    label.resize(size);
    return label.grab().toImage();
}

/// Two lines, as wide as this part of the words and a little more.
QSize roomFor(const QString& part)
{
    const QFontMetrics metrics = QLabel().fontMetrics();
    return {metrics.horizontalAdvance(part) + 4, 2 * metrics.lineSpacing()};
}

} // namespace

void PartsLabelTest::lines_breakOnlyBetweenParts()
{
    const QSize room = roomFor(QStringLiteral("640 × 360 · JPEG"));
    const QString broken = QStringLiteral("640 × 360 ·\nJPEG 90");
    QCOMPARE(paintedBy<PartsLabel>(words, room), paintedBy<QLabel>(broken, room));
    QVERIFY(paintedBy<QLabel>(words, room) != paintedBy<QLabel>(broken, room));
}

void PartsLabelTest::text_isOneLine_whereThereIsRoom()
{
    const QSize room = roomFor(words);
    QCOMPARE(paintedBy<PartsLabel>(words, room), paintedBy<QLabel>(words, room));
}

void PartsLabelTest::text_breaksBetweenWords_whereAPartIsTooWide()
{
    const QString large = QStringLiteral("640 × 360 of 1920 × 1080 · PNG");
    const QSize room = roomFor(QStringLiteral("640 × 360 of 1920"));
    QCOMPARE(paintedBy<PartsLabel>(large, room), paintedBy<QLabel>(large, room));
}

void PartsLabelTest::text_isNotChanged()
{
    PartsLabel label;
    label.setSeparator(QStringLiteral(" · "));
    label.setText(words);
    QCOMPARE(label.text(), words);
}

QTEST_MAIN(PartsLabelTest)
#include "PartsLabelTest.moc"
