// SPDX-License-Identifier: GPL-2.0-or-later
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  Q_INIT_RESOURCE(assets);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
