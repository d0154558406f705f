"""Reads the numbers in the frames of the sample videos, as documented in FrameNumber.h."""

BLOCKS = 16
ROWS_TO_HEIGHT = 12
SMALLEST = (32, 24)
# Between them a block is a blend or damaged.
DARKEST = 95
BRIGHTEST = 160


def frame_number(picture):
    """The number in an upright Pillow image of any size; none if it is not readable with certainty."""
    if picture.width < SMALLEST[0] or picture.height < SMALLEST[1]:
        return None
    strip = picture.crop((0, 0, picture.width, picture.height * 2 // ROWS_TO_HEIGHT + 1))
    bits = [_bit(strip.convert("L"), picture, column) for column in range(BLOCKS)]
    if None in bits or bits[0] != 1 or bits[-1] != 0:
        return None
    number = 0
    for bit in bits[1:-1]:
        number = number * 2 + bit
    return number


def _bit(strip, picture, column):
    """1 or 0 if the two rows confirm each other, otherwise none."""
    upper, lower = (_brightness(strip, picture, column, row) for row in (0, 1))
    if upper > BRIGHTEST and lower < DARKEST:
        return 1
    if upper < DARKEST and lower > BRIGHTEST:
        return 0
    return None


def _brightness(strip, picture, column, row):
    """The average of the block's inner half, unaffected by its neighbours."""
    width = picture.width / BLOCKS
    height = picture.height / ROWS_TO_HEIGHT
    left, top = int((column + 0.25) * width), int((row + 0.25) * height)
    right = max(left + 1, int((column + 0.75) * width))
    bottom = max(top + 1, int((row + 0.75) * height))
    pixels = strip.crop((left, top, right, bottom)).getdata()
    return sum(pixels) / len(pixels)


def fitted(shape, area):
    """The part of an area that a picture of the shape (width, height) fills, centred in it."""
    left, top, right, bottom = area
    scale = min((right - left) / shape[0], (bottom - top) / shape[1])
    width, height = round(shape[0] * scale), round(shape[1] * scale)
    left += (right - left - width) // 2
    top += (bottom - top - height) // 2
    return (left, top, left + width, top + height)
