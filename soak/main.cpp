// tqSoak: all operations and dialogs at random beside a model, with services that fail, a disk that
// fails and is full, and kills; docs/soak.md tells what is a loss.
#include <cstdio>

#include "platform/framework/window/WindowKind.h"
#include "soak/Options.h"
#include "soak/Process.h"
#include "soak/Soak.h"

int main(int argc, char** argv) {
  tq::ChooseWindows(tq::WindowKind::Memory); // its users are scripts
  int code = 0;
  if (soak::IsChild(argc, argv, code))
    return code;
  soak::Options options;
  if (!soak::ParseOptions(argc, argv, options)) {
    std::fputs(soak::kUsage, stderr);
    return 2;
  }
  return options.replay ? soak::Replay(options) : soak::Soak(options).Run();
}
