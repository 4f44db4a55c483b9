#pragma once

// The library's header needs glib's before it, and is no C++ of ours: its warnings are not for us.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
#include <glib.h>
#include <mdbtools.h>
#pragma GCC diagnostic pop
