// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/system/qt_desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLocale>
#include <QMenu>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>

#include "look/convert.h"
#include "look/frame/form_view.h"
#include "look/frame/main_frame.h"
#include "look/frame/qt_looks.h"
#include "look/frame/window_place.h"
#include "look/pictures/image_picture.h"
#include "look/reports/printing.h"
#include "look/system/long_work.h"
#include "look/system/message_box.h"
#include "look/system/settings_text.h"
#include "look/system/system_locale.h"
#include "platform/form.h"
#include "platform/frame.h"

namespace nautrel {
namespace {

/// In device pixels.
QSize largestScreen() {
  QSize largest;
  for (const QScreen* screen : QGuiApplication::screens())
    largest = largest.expandedTo(screen->size() * screen->devicePixelRatio());
  return largest;
}

/// "Text (*.a; *.b)|*.a;*.b" as the toolkit's dialogs write it: "Text (*.a *.b)".
QString nameFilter(const std::string& filter) {
  const auto parts = toQt(filter).split('|');
  if (parts.size() < 2) return {};
  const auto name = parts[0].section(QStringLiteral(" ("), 0, 0);
  auto patterns = parts[1];
  // To the toolkit "*.*" is a name with a point in it, to everyone else any name.
  patterns.replace(QStringLiteral("*.*"), QStringLiteral("*"));
  return name + QStringLiteral(" (") + patterns.replace(';', ' ') + ')';
}

constexpr const char* kFolders = "Folders";

const char* folderKey(const DialogRequest& request) {
  return request.pictures ? "Pictures" : "Files";
}

}  // namespace

QtDesktop::QtDesktop()
    : locale_(localeOf(QLocale())),
      settings_(settingsPlace(), QSettings::NativeFormat),
      pictures_(largestScreen()) {}

QWidget* QtDesktop::parentWindow() const {
  if (auto* modal = QApplication::activeModalWidget()) return modal;
  return looks_ != nullptr ? looks_->topWindow() : nullptr;
}

int QtDesktop::showMessage(const std::string& prompt, int style, const std::string& title) {
  return showMessageBox(parentWindow(), toQt(prompt), style, toQt(title));
}

std::string QtDesktop::askText(const std::string& prompt, const std::string& title) {
  QInputDialog dialog(parentWindow());
  dialog.setWindowTitle(toQt(title));
  dialog.setLabelText(toQt(prompt));
  frameDialog(dialog);
  return dialog.exec() == QDialog::Accepted ? fromQt(dialog.textValue()) : std::string{};
}

// Where he was last, as long as it is there.
QString QtDesktop::startFolder(const DialogRequest& request) {
  const auto last = toQt(readSetting(kFolders, folderKey(request)));
  if (!last.isEmpty() && QFileInfo(last).isDir()) return last;
  const auto usual = QStandardPaths::writableLocation(
      request.pictures ? QStandardPaths::PicturesLocation : QStandardPaths::DocumentsLocation);
  return QFileInfo(usual).isDir() ? usual : QDir::homePath();
}

std::optional<std::string> QtDesktop::chosenIn(QFileDialog& dialog, const DialogRequest& request) {
  frameDialog(dialog);
  fitInto(roomOn(*dialog.screen()), dialog);
  if (dialog.exec() != QDialog::Accepted) return {};
  const QFileInfo chosen(dialog.selectedFiles().value(0));
  writeSetting(kFolders, folderKey(request),
               fromQt(chosen.isDir() ? chosen.absoluteFilePath() : chosen.absolutePath()));
  return fromQt(QDir::toNativeSeparators(chosen.filePath()));
}

std::optional<std::string> QtDesktop::askFileToOpen(const DialogRequest& request) {
  QFileDialog dialog(parentWindow(), toQt(request.title), startFolder(request),
                     nameFilter(request.filter));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return chosenIn(dialog, request);
}

std::optional<std::string> QtDesktop::askFileToSave(const DialogRequest& request) {
  const auto name = QFileInfo(toQt(request.fileName)).fileName();
  QFileDialog dialog(parentWindow(), toQt(request.title), startFolder(request) + '/' + name,
                     nameFilter(request.filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  return chosenIn(dialog, request);
}

std::optional<std::string> QtDesktop::askFolder(const DialogRequest& request) {
  QFileDialog dialog(parentWindow(), toQt(request.title), startFolder(request));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return chosenIn(dialog, request);
}

void QtDesktop::runApart(const std::string& what, const LongWork& work) {
  doLongWork(parentWindow(), toQt(what), work);
}

std::optional<long> QtDesktop::askColor(long color) {
  QColorDialog dialog(toQt(color), parentWindow());
  frameDialog(dialog);
  scrollInto(roomOn(*dialog.screen()), dialog);
  if (dialog.exec() != QDialog::Accepted) return {};
  return fromQt(dialog.selectedColor());
}

void QtDesktop::ringBell() {
  QApplication::beep();
}

bool QtDesktop::askPrinter() {
  return setUpPrinterDialog(parentWindow(), printer_);
}

std::string QtDesktop::readSetting(const std::string& section, const std::string& key) {
  return fromQt(settingText(settings_, toQt(section), toQt(key)));
}

void QtDesktop::writeSetting(const std::string& section, const std::string& key,
                             const std::string& value) {
  settings_.setValue(toQt(section + "/" + key), toQt(value));
  settings_.sync();
}

DateTime QtDesktop::currentTime() {
  const auto now = QDateTime::currentDateTime();
  return {now.date().year(), now.date().month(),  now.date().day(),
          now.time().hour(), now.time().minute(), now.time().second()};
}

Picture QtDesktop::readPicture(const std::string& path) {
  return std::make_shared<ImagePicture>(pictures_.load(toQt(path)),
                                        QFileInfo(toQt(path)).fileName());
}

void QtDesktop::open(const std::string& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(path)));
}

void QtDesktop::popup(Menu& menu, const Control* above) {
  if (looks_ == nullptr || looks_->mainFrame() == nullptr) return;
  looks_->mainFrame()->menu(menu).exec(popupPlace(above));
}

QPoint QtDesktop::popupPlace(const Control* above) const {
  const auto* view = above == nullptr ? nullptr : looks_->viewOf(above->form());
  const auto* binding = view == nullptr ? nullptr : view->bindingOf(*above);
  if (binding == nullptr) return QCursor::pos();
  const auto& widget = *binding->widget();
  return widget.mapToGlobal(QPoint(0, widget.height()));
}

std::string QtDesktop::executableFolder() {
  return fromQt(QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
}

std::string QtDesktop::executableFile() {
  return fromQt(QDir::toNativeSeparators(QCoreApplication::applicationFilePath()));
}

ScreenSize QtDesktop::screenSize() {
  const auto size = QGuiApplication::primaryScreen()->availableGeometry().size();
  return {toTwips(size.width()), toTwips(size.height())};
}

void QtDesktop::endLoop(const std::optional<RunTimeError>& failure) {
  failure_ = failure;
  QCoreApplication::exit(failure ? 3 : 0);
}

}  // namespace nautrel
