#include "app/data_folder.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "qt/text.h"
#include "store/files.h"
#include "support/test_desk.h"

namespace {

using kit::Box;

// A program under usr/bin and a person without a choice yet.
struct DataFolders : testing::Test {
  DataFolders() {
    QStandardPaths::setTestModeEnabled(true);
    forget();
    QDir(place.path()).mkpath("usr/bin");
    QDir(place.path()).mkpath("usr/share/fee-office/背景图");
    QDir(place.path()).mkpath("学校 数据");
  }
  ~DataFolders() override {
    forget();
    QStandardPaths::setTestModeEnabled(false);
  }
  static void forget() {
    QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/fee-office").removeRecursively();
  }
  std::optional<app::DataFolder> known(const QString& named = {}) { return app::knownDataFolder(named, program); }

  QTemporaryDir place;
  QString program = place.path() + "/usr/bin", data = place.path() + "/学校 数据";
  support::TestDesk test;
};

TEST_F(DataFolders, AreAskedForOnceUnderAnInstalledProgram) {
  EXPECT_FALSE(known());
  EXPECT_EQ(known("/a")->path, "/a") << "what is named at the start goes before everything";

  const char* title = "数据文件夹";
  const std::string wish =
      "请选择存放学校数据的文件夹。\n多台计算机共用数据时，请选择共享文件夹中已有的数据文件夹。\n"
      "点“是”选择文件夹；点“否”退出本程序。";
  const std::string empty = "文件夹“" + qt::fromQt(data) + "”中没有本系统的数据。\n要在这里建立新的数据库吗？";
  test.person.answer(false, Box::AskInfo, wish, title);
  EXPECT_FALSE(app::chooseDataFolder(test.person, program, [] { return QString(); }));

  std::filesystem::permissions(qt::fromQt(data), std::filesystem::perms(0770));
  test.person.answer(true, Box::AskInfo, wish, title).answer(false, Box::AskInfo, empty, title);
  test.person.answer(true, Box::AskInfo, wish, title).answer(true, Box::AskInfo, empty, title);
  const auto chosen = app::chooseDataFolder(test.person, program, [this] { return data; });
  ASSERT_TRUE(chosen);
  EXPECT_TRUE(store::holdsDatabases(qt::fromQt(data)));
  EXPECT_TRUE(QFile::permissions(data + "/mv_Database/morvanegxgl.mdb") & QFile::WriteGroup) << "open to other desks";
  app::followRightsOf(qt::fromQt(program));
  EXPECT_TRUE(QFile::exists(data + "/背景图")) << "the pictures come along";
  EXPECT_EQ(known()->path, chosen->path);
  EXPECT_TRUE(known()->chosen);

  // A second desk finds the databases there and is not asked about new ones.
  forget();
  test.person.answer(true, Box::AskInfo, wish, title);
  EXPECT_TRUE(app::chooseDataFolder(test.person, program, [this] { return data; }));
}

TEST_F(DataFolders, AreTheProgramsOwnWhereItCanWorkInIt) {
  QDir(place.path() + "/usr/share").removeRecursively();
  EXPECT_EQ(known()->path, qt::fromQt(program));
  EXPECT_FALSE(known()->chosen);
}

}  // namespace
