#pragma once

// The header names a field with what is a keyword in C++.
#define explicit explicitActions
#include <xcb/xkb.h>
#undef explicit
