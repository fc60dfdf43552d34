#include "platform/CodePage.h"

namespace tq {

namespace {

constexpr unsigned char firstLead = 0x81;
constexpr unsigned char lastLead = 0xFE;

constexpr LeadByteTable BuildLeadBytes() {
  LeadByteTable table{};
  for (unsigned byte = firstLead; byte <= lastLead; ++byte)
    table.lead[byte] = true;
  return table;
}

} // namespace

// A constant: static strings of other modules may be worked on before this module's own start.
constinit const LeadByteTable leadBytes = BuildLeadBytes();

} // namespace tq
