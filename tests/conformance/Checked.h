// A run of the checker on the stand-in's services, and what it found.
#pragma once

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "conformance/Checks.h"
#include "tests/support/TempDir.h"

struct Checked {
  std::vector<conformance::Finding> findings;

  explicit Checked(bool quick = false, bool ui = false) {
    const TempDir directory;
    conformance::Options options;
    options.quick = quick;
    options.ui = ui;
    options.directory = directory.Path();
    options.found = [this](const conformance::Finding& finding) { findings.push_back(finding); };
    conformance::Check(options);
  }

  // One line for each finding, for messages.
  std::string Text() const {
    std::string text;
    for (const conformance::Finding& each : findings)
      text += each.call + ": " + conformance::TextOf(each.rule).id + ": " + each.seen + "\n";
    return text;
  }
};
