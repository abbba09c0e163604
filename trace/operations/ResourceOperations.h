#pragma once

#include "trace/operations/Parameters.h"
#include "trace/operations/Records.h"

namespace trace {

inline constexpr Parameter loadStringParameters[] = {
    plain("module", Role::ModuleHandle),
    plain("id", Role::Unsigned),
    needed(out("buffer", Role::TextOut, Extent::ResultFull, "size")),
    plain("size", Role::Number),
};

inline constexpr Parameter loadImageParameters[] = {
    plain("module", Role::ModuleHandle),
    plain("name", Role::UnreadText),
    named("type", Role::Choice, imageTypeNames),
    plain("width", Role::Number),
    plain("height", Role::Number),
    named("flags", Role::Flags, loadNames),
};

inline constexpr Parameter createImageParameters[] = {
    plain("kind", Role::Unsigned),
    plain("width", Role::Number),
    plain("height", Role::Number),
};

inline constexpr Parameter createBrushParameters[] = {plain("color", Role::Unsigned)};

inline constexpr Parameter fromHandleParameters[] = {
    plain("handle", Role::ObjectHandle),
    named("type", Role::Choice, objectTypeNames),
};

inline constexpr Parameter deleteObjectParameters[] = {ends(plain("handle", Role::ObjectHandle))};

inline constexpr Parameter metricParameters[] = {named("index", Role::Choice, metricNames)};

inline constexpr Parameter getBitmapParameters[] = {
    needed(record("bitmap", Role::RecordOut, bitmapFields, Extent::Whole)),
    plain("handle", Role::ObjectHandle),
};

inline constexpr Parameter bitmapBitsParameters[] = {
    plain("count", Role::Unsigned),
    needed(out("buffer", Role::DataOut, Extent::Result, "count")),
    plain("handle", Role::ObjectHandle),
};

inline constexpr Parameter cursorBitsParameters[] = {
    plain("handle", Role::ObjectHandle), plain("width", Role::Number),
    plain("height", Role::Number),       needed(out("buffer", Role::DataOut, Extent::Result)),
    plain("bitsPerPixel", Role::Number),
};

inline constexpr Parameter printerParameters[] = {
    named("flags", Role::Flags, printerNames),
    plain("name", Role::UnreadText),
    plain("level", Role::Unsigned),
    plain("buffer", Role::Unwritten),
    plain("size", Role::Unsigned),
    plain("needed", Role::Unwritten),
    plain("returned", Role::Unwritten),
};

inline constexpr Parameter fromPointParameters[] = {
    record("point", Role::RecordValue, pointFields),
    named("flags", Role::Choice, monitorNames),
};

inline constexpr Parameter monitorInfoParameters[] = {
    needed(plain("monitor", Role::MonitorHandle)),
    needed(record("info", Role::RecordOut, monitorFields, Extent::Whole)),
};

inline constexpr Operation resourceOperations[] = {
    destructor("~IPlatformResourceManager"),
    destructor("~IPlatformResourceManager (deleting)"),
    {"loadString", {Role::Number, Failure::Zero}, loadStringParameters},
    {"loadImage", {Role::Pointer, Failure::Zero}, loadImageParameters, true},
    {"createImage", {Role::ObjectHandle, Failure::Zero, Life::Begins}, createImageParameters},
    {"createBrush", {Role::ObjectHandle, Failure::Zero, Life::Begins}, createBrushParameters},
    {"fromHandle", {Role::Pointer}, fromHandleParameters},
    // Its result says nothing.
    {"deleteObject", {Role::Number}, deleteObjectParameters},
    {"GetSystemMetrics", {Role::Number, Failure::Zero}, metricParameters},
    {"GetBitmap", {Role::Number, Failure::Zero}, getBitmapParameters},
    {"GetBitmapBits", {Role::Number, Failure::Zero}, bitmapBitsParameters},
    {"GetCursorBits", {Role::Number, Failure::Zero}, cursorBitsParameters},
    {"EnumPrintersW", {Role::Number, Failure::Zero}, printerParameters, true},
    {"MonitorFromPoint", {Role::MonitorHandle, Failure::Zero}, fromPointParameters},
    {"GetMonitorInfoW", {Role::Number, Failure::Zero}, monitorInfoParameters},
};

} // namespace trace
