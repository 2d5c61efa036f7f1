#pragma once

// Stands in for the library's own header, which holds a vector of an incomplete type: Clang 14 refuses that in C++20.
// The declarations that we use need the name alone.
class JSON;
