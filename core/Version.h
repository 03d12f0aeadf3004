#pragma once

#include <string>

namespace zul {

/// The program's version record.
struct Version
{
    int major = 1;
    int minor = 8;
    int patch = 9;
    int year = 2020;
    const char* product = "ZUL";
};

inline constexpr Version version{};

/// The product name alone: "ZUL".
std::string productName();

/// The numbers with points between them.
std::string versionNumbers();

/// Product name, a blank, the numbers.
std::string versionText();

/// The compiler's date, a blank, its time.
std::string buildStamp();

} // namespace zul
