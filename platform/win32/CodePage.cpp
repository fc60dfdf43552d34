#include "platform/CodePage.h"

#include <windows.h>

namespace tq {

namespace {

// CPINFO lists ranges of lead bytes, first and last, ended by a pair of zeros.
LeadByteTable BuildLeadBytes() {
  LeadByteTable table{};
  CPINFO info{};
  if (!GetCPInfo(CP_ACP, &info) || info.MaxCharSize != 2)
    return table;
  for (int pair = 0; pair + 1 < MAX_LEADBYTES && info.LeadByte[pair] != 0; pair += 2) {
    for (unsigned byte = info.LeadByte[pair]; byte <= info.LeadByte[pair + 1]; ++byte)
      table.lead[byte] = true;
  }
  return table;
}

} // namespace

// Filled while this module is loaded, which is before any module that uses it.
const LeadByteTable leadBytes = BuildLeadBytes();

} // namespace tq
