#pragma once

#include <objc/objc.h>

extern "C" Class objc_getClass(const char* name);
