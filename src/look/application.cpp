// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/application.h"

#include <QApplication>
#include <memory>

#include "app/Nautrel.h"
#include "look/bindings/spoken.h"
#include "look/convert.h"
#include "look/frame/qt_looks.h"
#include "look/pictures/icons.h"
#include "look/system/look_style.h"
#include "look/system/message_box.h"
#include "look/system/qt_desktop.h"
#include "store/divers_folder.h"
#include "store/lock.h"

// A static library's pictures come in only if they are asked for, and only from outside of any
// namespace.
static void loadPictures() {
  Q_INIT_RESOURCE(assets);
}

namespace nautrel {
namespace {

constexpr int kStatusAfterFailure = 3;
constexpr int kCritical = 16;
constexpr int kExclamation = 48;

int showFailure(const RunTimeError& failure) {
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  showMessageBox(
      nullptr,
      QStringLiteral("Run-time error '%1':\n\n%2").arg(failure.number).arg(toQt(failure.text)),
      kCritical, QString::fromUtf8(kApplicationTitle));
  return kStatusAfterFailure;
}

int refuse(std::string_view why, int status) {
  showMessageBox(nullptr, toQt(why), kExclamation, QString::fromUtf8(kApplicationTitle));
  return status;
}

}  // namespace

void prepareLook() {
  loadPictures();
  letWidgetsSpeak();
  QApplication::setStyle(new LookStyle);
  QApplication::setWindowIcon(namedIcon("nautrel"));
}

int runApplication(int argc, char** argv) {
  QApplication::setApplicationName(QString::fromUtf8(kApplicationTitle));
  QApplication::setApplicationDisplayName(QString());
  QApplication application(argc, argv);
  prepareLook();
  // Task bars find the program's sign and name by its desktop entry.
  QApplication::setDesktopFileName(QStringLiteral("nautrel"));
  QApplication::setQuitOnLastWindowClosed(false);

  QtDesktop desktop;
  auto nautrel = std::make_unique<Nautrel>(desktop);
  const auto folder = desktop.applicationPath();
  if (const auto why = makeMissingLogbook(folder); !why.empty()) return refuse(why, 1);
  const LogbookLock lock(nautrel->databasePath());
  if (lock.isInUse()) return refuse(kLogbookInUse, 0);
  renewTexts(folder);
  QtLooks looks(*nautrel);
  desktop.setLooks(&looks);
  nautrel->setLooks(&looks);

  nautrel->start();
  int status = desktop.ended() ? 0 : QApplication::exec();
  if (desktop.failure()) status = showFailure(*desktop.failure());
  // The windows go before what shows them.
  nautrel.reset();
  return status;
}

}  // namespace nautrel
