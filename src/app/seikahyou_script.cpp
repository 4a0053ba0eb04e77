#include <iostream>

#include "platform/system.h"
#include "report/page_writer.h"
#include "script/session.h"
#include "tell_version.h"
#ifdef SEIKAHYOU_WITH_WINDOWS
#include "hands/window_hands.h"
#include "qt/application.h"
#include "qt/page_writer.h"
#include "qt/program.h"
#endif

/// seikahyou-script: works the program through an operation script and prints what the operator would see.
int main(int argc, char** argv) {
  platform::useByteStreams();
  if (app::tellVersion(argc, argv, "seikahyou-script")) return 0;
  script::WindowHandsMaker windowHands;
  report::PageWriterMaker pageWriter;
  script::PersonsWindows person;
#ifdef SEIKAHYOU_WITH_WINDOWS
  windowHands = [&argc, argv] { return hands::windowHands(argc, argv); };
  pageWriter = [] { return qt::pageWriter(); };
  person = [argv](const shell::CommandLine& commandLine, ui::ActWitness& witness) {
    qt::scaleAsTheDisplay();
    qt::Application application(argv[0]);
    return qt::runSession(application, commandLine, {}, &witness);
  };
#endif
  return script::runSession(platform::commandLineWords(argc, argv), windowHands,
                            {std::cin, std::cout, std::cerr}, pageWriter, person);
}
