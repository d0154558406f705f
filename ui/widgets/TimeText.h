#pragma once

#include <QString>

/// A time in milliseconds as "01:02:03.500". Whole days are dropped.
[[nodiscard]] QString timeText(qint64 ms);
