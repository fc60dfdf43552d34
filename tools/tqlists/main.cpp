#include "tools/tqlists/Program.h"
#include "tools/tqlists/files/ProcessStreams.h"

int main(int count, char** words) {
  tqlists::ProcessStreams streams;
  return tqlists::Run(tqlists::ArgumentsOf(count, words), streams);
}
