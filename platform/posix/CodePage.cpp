#include "platform/CodePage.h"

namespace tq {

namespace {

constexpr unsigned char kFirstLead = 0x81;
constexpr unsigned char kLastLead = 0xFE;

constexpr LeadByteTable BuildLeadBytes() {
  LeadByteTable table{};
  for (unsigned byte = kFirstLead; byte <= kLastLead; ++byte)
    table.lead[byte] = true;
  return table;
}

} // namespace

// A constant: static strings of other modules may be worked on before this module's own start.
constinit const LeadByteTable leadBytes = BuildLeadBytes();

} // namespace tq
