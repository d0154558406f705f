#include "stills/PictureNames.h"

#include "series/SeriesTargets.h"
#include "stills/Texts.h"

#include <algorithm>

namespace stills {

namespace {

using Field = NameTemplate::Field;

/// In bytes; leaves room for the parts that profiles add.
constexpr std::size_t longestProfileStem = 150;
/// In bytes, whatever the counter, so that the names of all pictures are truncated alike.
constexpr std::size_t counterRoom = 10;

bool asksForTimes(const FramePositions& positions)
{
    switch (positions.kind) {
    case FramePositions::Kind::Spread:
    case FramePositions::Kind::Every:
    case FramePositions::Kind::Best:
        return true;
    case FramePositions::Kind::KeyFrames:
    case FramePositions::Kind::Scenes:
        return false;
    case FramePositions::Kind::List:
        break;
    }
    return !asksForNumbers(positions);
}

NameFields fieldsOf(const VideoTask& task, const NameTemplate& names)
{
    NameFields fields;
    fields.stem = task.stem;
    fields.tail = names.uses(Field::Stem) ? task.tail : task.folderTail;
    return fields;
}

/// The tail of a video in a profile's name, apart from digits that follow it.
std::string tailFor(const OutputNaming& naming, const VideoTask& task, int counter)
{
    const std::string tail = naming.baseName.isEmpty() ? task.tail : task.folderTail;
    const QString next = naming.suffix + naming.counterText(counter);
    const bool isApart = tail.empty() || next.isEmpty() || !next.front().isDigit();
    return isApart ? tail : tail + '-';
}

/// Truncates a text to this many bytes, between characters.
void cut(QString& text, std::size_t bytes)
{
    text = pathOf(cutBetweenCharacters(bytesOf(text), bytes));
}

std::size_t sizeOf(const QString& text)
{
    return bytesOf(text).size();
}

/// Difference that is 0 at least.
std::size_t less(std::size_t a, std::size_t b)
{
    return a > b ? a - b : 0;
}

/// Truncates the parts until they have that many bytes together: the base name as far as videos
/// stay distinguishable, and then what is in front of it and behind it, the longer one first.
void shorten(OutputNaming& naming, std::size_t room)
{
    const std::size_t around = sizeOf(naming.prefix) + sizeOf(naming.suffix);
    cut(naming.baseName, std::max(distinctStem, less(room, around)));
    const std::size_t left = less(room, sizeOf(naming.baseName));
    cut(naming.suffix, std::max(left / 2, less(left, sizeOf(naming.prefix))));
    cut(naming.prefix, less(left, sizeOf(naming.suffix)));
}

/// The profile's name for a picture, without dot and type. Tail and counter are never truncated.
std::string profileName(OutputNaming naming, const VideoTask& task, int counter, std::size_t room)
{
    const std::string tail = tailFor(naming, task, counter);
    if (naming.baseName.isEmpty()) {
        naming.baseName = pathOf(cutBetweenCharacters(task.stem, longestProfileStem));
    }
    shorten(naming, less(room, tail.size() + counterRoom));
    naming.baseName += pathOf(tail);
    const QString name = naming.fileName(QString(), counter);
    return bytesOf(name.left(name.size() - naming.type.size() - 1));
}

} // namespace

PictureNames::PictureNames(const Options& options, const std::optional<OutputNaming>& naming,
                           QString suffix)
    : m_template(options.names)
    , m_naming(naming)
    , m_suffix(bytesOf(suffix))
    , m_takesAskedTime(asksForTimes(options.positions))
{
    if (options.sheet) {
        m_sheet = options.sheet->name;
    }
}

QByteArray PictureNames::name(const VideoTask& task, const SeriesPicture& picture, int number,
                              bool isOnly, int attempt) const
{
    if (m_naming) {
        const bool isSingle = isOnly && attempt == 1;
        const int counter =
            isSingle ? OutputNaming::noCounter : number + attempt - (isOnly ? 2 : 1);
        return QByteArray::fromStdString(
            safeFileName(profileName(*m_naming, task, counter, longestBase(m_suffix)), m_suffix));
    }
    NameFields fields = fieldsOf(task, m_template);
    fields.number = number;
    fields.frame = picture.frame;
    fields.timeMs =
        m_takesAskedTime && picture.askedMs ? *picture.askedMs : picture.timeMs.value_or(0);
    fields.width = picture.size.width();
    fields.height = picture.size.height();
    return QByteArray::fromStdString(m_template.fileName(fields, m_suffix, attempt));
}

std::optional<QByteArray> PictureNames::nameBefore(const VideoTask& task,
                                                   const SeriesTarget& target, int number) const
{
    const bool isTimeKnown = m_takesAskedTime && !target.isLast;
    const bool isKnown = !m_naming && !m_template.uses(Field::Frame) &&
                         !m_template.uses(Field::Width) && !m_template.uses(Field::Height) &&
                         (isTimeKnown || !m_template.uses(Field::Time));
    if (!isKnown) {
        return std::nullopt;
    }
    SeriesPicture picture;
    picture.askedMs = target.ms;
    return name(task, picture, number, false, 1);
}

QByteArray PictureNames::sheetName(const VideoTask& task, int attempt) const
{
    return QByteArray::fromStdString(m_sheet.fileName(fieldsOf(task, m_sheet), m_suffix, attempt));
}

} // namespace stills
