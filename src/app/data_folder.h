// Where the school's data lie for this computer.
#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <optional>

#include "kit/desk.h"

namespace app {

struct DataFolder {
  std::filesystem::path path;
  bool chosen = false;  // by the person on this computer; may be chosen anew
};

// The folder that is named at the start; without one the program's own, where the program can work in it; else the one
// that was chosen on this computer. Nothing: it has not been chosen yet.
std::optional<DataFolder> knownDataFolder(const QString& named, const QString& programFolder);

// Asks for a folder, makes a new office in it when the person wants one there, and remembers it. Pick shows the folders
// and gives back an empty text when the person leaves. Nothing: the person does not want to choose.
std::optional<DataFolder> chooseDataFolder(kit::Person& person, const QString& programFolder,
                                           const std::function<QString()>& pick);

// What this desk writes must be open to the others: from here on new files get the rights of the folder.
void followRightsOf(const std::filesystem::path& folder);

}  // namespace app
