#include "look/application.h"

int main(int argc, char** argv) {
  return nautrel::runApplication(argc, argv);
}
