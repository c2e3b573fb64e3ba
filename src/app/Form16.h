// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// The information window: what this system is, what it stands on and who may use it. Its texts
/// stand reversed in the labels and are turned round when it opens; the timer lets bubbles rise
/// beside them.
class Form16 : public Form {
 public:
  static constexpr int kNumber = Windows::Information;
  explicit Form16(Shell& app);

  void Form_Load() override;
  void Picture1_Click();
  void Timer1_Timer();
  void Command1_Click();

  /// Each of them turns one label round.
  /// @{
  void Name();
  void Zweck();
  void Logbuch();
  void Bausteine();
  void Lizenz();
  void Hinweis();
  /// @}

  PictureBox Picture1{*this, "Picture1", 0x5A3A0F};
  Label Label1{*this, "Label1", "0.2 lertuaN"};
  Label Label2{*this, "Label2", "srevid abucs rof koobgol potksed A"};
  Label Label3{*this, "Label3",
               ".margorp eht ediseb ,bdm.hcubgoL\n"
               ",elif eno ni dnats sevid ruoy llA"};
  Label Label4{*this, "Label4",
               ".)serutcip elifatem( gvs2fmebil\n"
               "dna fmwbil ,)stroper( ehcatsum\n"
               ",)stxet( corp8ftu ,)koobgol eht( etiLQS\n"
               ",)gnitnirp dna swodniw( tQ no tliuB"};
  Label Label5{*this, "Label5", ".esolc ot csE sserp ro kcilC"};
  Label Label6{*this, "Label6",
               ".enola 2 :gvs2fmebil htiw deknil ;retal ro\n"
               "2 esneciL cilbuP lareneG UNG :secruos stI\n"
               ".ytnarraw yna tuohtiw erawtfos eerF"};
  Shape Shape1{*this, "Shape1", 300, {270, 3300}};
  Shape Shape2{*this, "Shape2", 180, {840, 2200}};
  Shape Shape3{*this, "Shape3", 420, {560, 4300}};
  Shape Shape4{*this, "Shape4", 240, {150, 1400}};
  Shape Shape5{*this, "Shape5", 150, {1000, 600}};
  Button Command1{*this, "Command1", "Close"};
  Timer Timer1{*this, "Timer1", 40};

 private:
  Shell& app_;
};

}  // namespace nautrel
