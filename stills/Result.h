#pragma once

#include "series/TextResult.h"

namespace stills {

using positions::quoted;
using positions::Result;

} // namespace stills
