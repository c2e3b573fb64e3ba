// SPDX-License-Identifier: GPL-2.0-or-later
#include <QAbstractButton>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLayout>
#include <QSettings>
#include <QTimer>

#include "gui/gui_test.h"
#include "look/frame/window_place.h"

namespace nautrel {
namespace {

TEST(SettingsFile, AValueWithACommaWrittenByHandComesBackAsItStands) {
  const TemporaryFolder folder;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, toQt(folder.path()));
  folder.write("Nautrel.conf",
               "[Other]\nGrafic=a,b\n\n[Start]\nGrafic= /reefs/left, right,  both.jpg \n"
               "H%F6he=9000,5\nBreite=12000\nWindow=\"a, b\"\n");
  QtDesktop desktop;
  EXPECT_EQ(desktop.GetSetting("Start", "Grafic"), "/reefs/left, right,  both.jpg");
  EXPECT_EQ(desktop.GetSetting("Start", "Höhe"), "9000,5");
  EXPECT_EQ(desktop.GetSetting("Start", "Breite"), "12000");
  EXPECT_EQ(desktop.GetSetting("Start", "Window"), "a, b");
  const std::string path = "C:\\dives, \"2001\"\\ä;b.jpg";
  desktop.SaveSetting("Start", "Grafic", path);
  EXPECT_EQ(QtDesktop().GetSetting("Start", "Grafic"), path);
}

TEST(WindowPlace, ATitleBarOutOfReachOrASizeBeyondAllScreensIsPulledBack) {
  const QRect left(0, 0, 1280, 1024);
  const QRect right(1280, 0, 1920, 1080);
  const struct {
    QRect window;
    QList<QRect> screens;
    QRect shown;
  } cases[] = {{{100, 50, 800, 600}, {left}, {100, 50, 800, 600}},
               {{1400, 50, 800, 600}, {left, right}, {1400, 50, 800, 600}},
               {{1000, 900, 800, 600}, {left, right}, {1000, 900, 800, 600}},
               {{1400, 50, 800, 600}, {left}, {480, 50, 800, 600}},
               {{-900, -700, 800, 600}, {left}, {0, 0, 800, 600}},
               {{100, 1300, 800, 600}, {left, right}, {100, 424, 800, 600}},
               {{0, 0, 3000, 1000}, {left, right}, {0, 0, 3000, 1000}},
               {{0, 0, 3000, 1000}, {left}, {0, 0, 1280, 1000}},
               {{-10, -10, 9000000, 9000000}, {left, right}, {0, 0, 1280, 1024}}};
  for (const auto& item : cases) EXPECT_EQ(pulledBack(item.window, item.screens), item.shown);
}

TEST(WindowPlace, AFileDialogIsNoLargerThanTheScreen) {
  QFileDialog dialog;
  fitInto({304, 152}, dialog);
  dialog.show();
  QApplication::processEvents();
  EXPECT_TRUE(dialog.width() <= 304 && dialog.height() <= 152);
}

TEST(WindowPlace, TheProgramsFileDialogsAreFittedAndGiveWhatIsTyped) {
  const TemporaryFolder folder;
  folder.write("there.txt", "");
  const auto make = [&](const char* name) {
    std::filesystem::create_directory(folder.file(name));
    return QFileInfo(toQt(folder.file(name))).canonicalFilePath();
  };
  const auto photos = make("Photos");
  const auto papers = make("Papers");
  folder.write("user-dirs.dirs", "XDG_PICTURES_DIR=\"" + fromQt(photos) +
                                     "\"\nXDG_DOCUMENTS_DIR=\"" + fromQt(papers) + "\"\n");
  qputenv("XDG_CONFIG_HOME", folder.path().c_str());
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, toQt(folder.path()));
  QtDesktop desktop;
  QStringList begun;
  const auto answer = [&](const char* name) {
    QTimer::singleShot(0, [&, path = toQt(folder.file(name))] {
      auto& dialog = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
      begun += dialog.directory().canonicalPath();
      EXPECT_EQ(dialog.layout()->sizeConstraint(), QLayout::SetNoConstraint);
      EXPECT_EQ(dialog.windowTitle(), "Some title");
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(path);
      dialog.findChild<QDialogButtonBox*>()->buttons().front()->click();
    });
  };
  const DialogRequest request{.title = "Some title", .filter = "*.*|*.*"};
  answer("there.txt");
  EXPECT_EQ(desktop.openFile(request), folder.file("there.txt"));
  answer("new.txt");
  EXPECT_EQ(desktop.saveFile(request), folder.file("new.txt"));
  answer("there.txt");
  EXPECT_TRUE(desktop.openFile({.title = "Some title", .filter = "*.*|*.*", .pictures = true}));
  QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
  EXPECT_FALSE(desktop.saveFile(request));
  const auto last = QFileInfo(toQt(folder.path())).canonicalFilePath();
  EXPECT_EQ(begun, (QStringList{papers, last, photos}));
}

// Each with its buttons plain and in sight on a small screen, and with nothing in its frame but a
// title and what closes it.
TEST(Dialogs, HavePlainButtonsAndFrames) {
  QtDesktop desktop;
  const QSize room = roomOn(*QGuiApplication::primaryScreen());
  int dialogs = 0;
  const auto look = [&](bool closes) {
    QTimer::singleShot(0, [&, closes] {
      auto& dialog = *QApplication::activeModalWidget();
      ++dialogs;
      const auto hints = dialog.windowFlags();
      EXPECT_FALSE(hints & Qt::WindowMinMaxButtonsHint);
      EXPECT_TRUE(hints & Qt::CustomizeWindowHint);
      EXPECT_EQ(bool(hints & Qt::WindowCloseButtonHint), closes);
      EXPECT_EQ(dialog.size().boundedTo(room), dialog.size());
      for (const auto* button : dialog.findChildren<QDialogButtonBox*>().front()->buttons()) {
        EXPECT_TRUE(button->icon().isNull());
        EXPECT_TRUE(
            dialog.rect().contains(QRect(button->mapTo(&dialog, QPoint()), button->size())));
      }
      static_cast<QDialog&>(dialog).done(QDialog::Rejected);
    });
  };
  look(true);
  desktop.MsgBox("Some prompt", 64);
  look(false);
  desktop.MsgBox("Some question", kAskNo);
  look(true);
  desktop.InputBox("Some prompt", "Some title");
  look(true);
  desktop.chooseColor(0);
  look(true);
  desktop.setUpPrinter();
  EXPECT_EQ(dialogs, 5);

  QColorDialog color;
  scrollInto({624, 352}, color);
  color.show();
  EXPECT_TRUE(color.width() <= 624 && color.height() <= 352);
}

TEST_F(GuiTest, AMainWindowStoredFarAwayComesBackAndItsSettingsStay) {
  desktop->settings = {{{"Start", "Fenster"}, "Ben"},
                       {{"Start", "Breite"}, "3e38"},
                       {{"Start", "Höhe"}, "9000"},
                       {{"Start", "Links"}, "-3e38"},
                       {{"Start", "Oben"}, "750000"}};
  const auto settings = desktop->settings;
  start();
  const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
  const auto* shown = window(app->MDIForm1());
  EXPECT_TRUE(screen.contains(shown->frameGeometry()));
  EXPECT_EQ(app->MDIForm1().Left(), toTwips(shown->frameGeometry().x()));
  EXPECT_EQ(desktop->settings, settings);
}

}  // namespace
}  // namespace nautrel
