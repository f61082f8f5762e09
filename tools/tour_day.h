// A whole day at the front desk of the sample school, through the real windows.
#pragma once

#include <filesystem>

// Plays the day in the school's program folder; pictures and files come into the other one, numbered on. Gives back the
// number of differences found in the database, or -1 when the program ended before the day did.
int playDay(const std::filesystem::path& school, const std::filesystem::path& pictures, int& numbered);
