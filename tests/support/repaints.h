// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "platform/control.h"
#include "platform/look.h"

namespace nautrel {

/// Looks that show nothing, but hear of every control that a rule wants painted at once.
class Repaints : public Looks {
 public:
  using Heard = std::function<void(Control&)>;
  explicit Repaints(Heard heard) : heard_(std::move(heard)) {}

  std::unique_ptr<FormLook> make(Form&) override { return std::make_unique<Look>(heard_); }
  void flush() override {}

 private:
  struct Look : FormLook {
    explicit Look(const Heard& ear) : heard(ear) {}
    void controlChanged(Control&) override {}
    void formChanged() override {}
    void refresh(Control& control) override { heard(control); }
    void show() override {}
    void close() override {}
    const Heard& heard;
  };

  Heard heard_;
};

}  // namespace nautrel
