// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/system/long_work.h"

#include <QDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <atomic>
#include <future>

namespace nautrel {
namespace {

using namespace std::chrono_literals;

// In so short a time nobody has begun to wait.
constexpr auto kMoment = 150ms;
constexpr int kLookEvery = 40;  // milliseconds
constexpr int kParts = 1000;    // of the bar

/// What the work says and hears, from its thread.
struct Talk {
  std::atomic<std::size_t> done{0};
  std::atomic<std::size_t> all{0};
  std::atomic<bool> stop{false};
};

/// Closes when the work has ended, and by nothing else.
class WorkBox : public QDialog {
 public:
  WorkBox(QWidget* parent, const QString& what, Talk& talk, std::future<void>& end)
      : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
        talk_(talk),
        end_(end),
        what_(new QLabel(what + QStringLiteral(" …"))),
        bar_(new QProgressBar),
        cancel_(new QPushButton(QStringLiteral("Cancel"))) {
    setWindowTitle(QString::fromUtf8(kApplicationTitle));
    what_->setTextFormat(Qt::PlainText);
    bar_->setAccessibleName(what);
    bar_->setMinimumWidth(320);
    bar_->setRange(0, 0);
    cancel_->hide();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(9);
    column->addWidget(what_);
    column->addWidget(bar_);
    column->addWidget(cancel_, 0, Qt::AlignRight);
    connect(cancel_, &QPushButton::clicked, this, [this] { stop(); });
    connect(&clock_, &QTimer::timeout, this, [this] { look(); });
    clock_.start(kLookEvery);
  }

 protected:
  void reject() override { stop(); }
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    stop();
  }

 private:
  void stop() {
    if (cancel_->isHidden()) return;
    talk_.stop = true;
    what_->setText(QStringLiteral("Stopping …"));
  }
  void look() {
    if (end_.wait_for(0s) == std::future_status::ready) return accept();
    const auto all = talk_.all.load();
    if (all == 0) return;
    cancel_->show();
    bar_->setRange(0, kParts);
    bar_->setValue(static_cast<int>(kParts * std::min(1.0, double(talk_.done) / double(all))));
  }

  Talk& talk_;
  std::future<void>& end_;
  QLabel* what_;
  QProgressBar* bar_;
  QPushButton* cancel_;
  QTimer clock_;
};

}  // namespace

void doLongWork(QWidget* parent, const QString& what, const LongWork& work) {
  Talk talk;
  auto end = std::async(std::launch::async, [&] {
    work([&](std::size_t done, std::size_t all) {
      talk.done = done;
      talk.all = all;
      return !talk.stop;
    });
  });
  if (end.wait_for(kMoment) == std::future_status::ready) return;
  WorkBox(parent, what, talk, end).exec();
  end.wait();
}

}  // namespace nautrel
