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

// A constant: other modules' static strings may be used before this module's initialisation.
constinit const LeadByteTable leadBytes = BuildLeadBytes();

} // namespace tq
