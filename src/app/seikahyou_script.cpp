#include <iostream>
#include <string>
#include <vector>

#include "script/session.h"
#ifdef SEIKAHYOU_WITH_WINDOWS
#include "qt/window_hands.h"
#endif

/// seikahyou-script: works the program through an operation script and prints what the operator would see.
int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
  script::WindowHandsMaker windowHands;
#ifdef SEIKAHYOU_WITH_WINDOWS
  windowHands = [&argc, argv] { return qt::windowHands(argc, argv); };
#endif
  return script::runSession(words, windowHands, {std::cin, std::cout, std::cerr});
}
