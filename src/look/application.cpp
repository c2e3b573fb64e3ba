// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/application.h"

#include <QApplication>
#include <QLocale>
#include <memory>

#include "app/Nautrel.h"
#include "companion/Companion.h"
#include "look/bindings/spoken.h"
#include "look/convert.h"
#include "look/frame/qt_looks.h"
#include "look/pictures/icons.h"
#include "look/system/look_style.h"
#include "look/system/message_box.h"
#include "look/system/qt_desktop.h"
#include "look/system/system_locale.h"
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

/// The loop, from the program's start to the end of its windows. Returns the status.
template <class Kind>
int run(QtDesktop& desktop, std::unique_ptr<Kind> program) {
  QtLooks looks(*program);
  desktop.setLooks(&looks);
  program->setLooks(&looks);
  program->start();
  int status = desktop.ended() ? 0 : QApplication::exec();
  if (desktop.failure()) status = showFailure(*desktop.failure());
  // The windows go before what shows them.
  program.reset();
  return status;
}

/// What holds for all of it and is to be known before there is an application.
void nameApplication() {
  QApplication::setApplicationName(QString::fromUtf8(kApplicationTitle));
  QApplication::setApplicationDisplayName(QString());
  // Task bars find the program's sign and name by its desktop entry.
  QApplication::setDesktopFileName(QStringLiteral("nautrel"));
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace

void prepareLook() {
  loadPictures();
  letWidgetsSpeak();
  QApplication::setStyle(new LookStyle);
  QApplication::setWindowIcon(namedIcon("nautrel"));
}

Locale localeOfPrograms() {
  return localeOf(QLocale());
}

int runApplication(int argc, char** argv) {
  nameApplication();
  QApplication application(argc, argv);
  prepareLook();
  QtDesktop desktop;
  auto nautrel = std::make_unique<Nautrel>(desktop);
  const auto folder = desktop.applicationPath();
  if (const auto why = makeMissingLogbook(folder); !why.empty()) return refuse(why, 1);
  const LogbookLock lock(nautrel->databasePath());
  if (lock.isInUse()) return refuse(kLogbookInUse, 0);
  renewTexts(folder);
  return run(desktop, std::move(nautrel));
}

int runCompanion(int argc, char** argv) {
  nameApplication();
  QApplication application(argc, argv);
  prepareLook();
  QtDesktop desktop;
  if (const auto why = makeMissingLogbook(desktop.applicationPath()); !why.empty())
    return refuse(why, 1);
  return run(desktop, std::make_unique<exchange::Companion>(desktop));
}

}  // namespace nautrel
