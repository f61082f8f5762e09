// The front-desk settings: the configuration record's columns and their copies in the session, in step.
#pragma once

#include <string_view>

#include "kit/desk.h"
#include "store/record_set.h"

namespace school {

// The configuration record; empty when there is none.
store::RecordSet configuration(kit::Desk& desk);
// Copies the configuration record into the session. False: there is no record, and all stays as it was.
bool loadSettings(kit::Desk& desk);
// The same for qfjz and qfcejz alone: the fee window reads them again at each confirmation.
bool loadArrearsSettings(kit::Desk& desk);
// The same for qfts alone: the lead of the reminders.
bool loadReminderDays(kit::Desk& desk);
// The same for bjsf1 alone: the basis of the fee standards.
bool loadStandardBasis(kit::Desk& desk);

// Writes one column of the configuration record and copies it into the session. False: there is no record, and nothing
// was done.
bool storeSetting(kit::Desk& desk, std::string_view column, const store::Value& value);

// Whether a setting that has no copy in the session is on in the record.
bool settingIsOn(kit::Desk& desk, std::string_view column);

// The session's copy of a setting that is on or off.
bool kit::Session::*flagOf(std::string_view column);

}  // namespace school
