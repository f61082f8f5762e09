// A whole day at the front desk of the sample school, through the real windows.
#pragma once

#include <filesystem>

// Plays the day in the school's program folder; pictures and files come into the other one, numbered on. Whether the
// day was played to its end; what the database then holds is checked.
bool playDay(const std::filesystem::path& school, const std::filesystem::path& pictures, int& numbered);
