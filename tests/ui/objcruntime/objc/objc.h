#pragma once

// The declarations of the Objective-C runtime that the message box of macOS uses, for the systems
// that have no such runtime. RecordingRuntime defines the functions.

struct objc_class;
struct objc_object;
struct objc_selector;

using Class = objc_class*;
using id = objc_object*;
using SEL = objc_selector*;

extern "C" SEL sel_registerName(const char* name);
