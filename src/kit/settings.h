// The front-desk settings: the configuration record's columns and their copies in the session, in step.
#pragma once

#include <string_view>

#include "kit/desk.h"

namespace kit {

// Copies the configuration record into the session. False: there is no record, and all stays as it was.
bool loadSettings(Desk& desk);
// The same for qfjz and qfcejz alone: the fee window reads them again at each confirmation.
bool loadArrearsSettings(Desk& desk);
// The same for qfts alone: the lead of the reminders.
bool loadReminderDays(Desk& desk);
// The same for bjsf1 alone: the basis of the fee standards.
bool loadStandardBasis(Desk& desk);

// Writes one column of the configuration record and copies it into the session. False: there is no record, and nothing
// was done.
bool storeSetting(Desk& desk, std::string_view column, const store::Value& value);

// Whether a setting that has no copy in the session is on in the record.
bool settingIsOn(Desk& desk, std::string_view column);

// The session's copy of a setting that is on or off.
bool Session::*flagOf(std::string_view column);

}  // namespace kit
