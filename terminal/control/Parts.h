// The parts of the stand-in's state that Reset puts back, each kept in the file that owns it.
#pragma once

namespace standin {

void ResetScript();
void ResetReleases();
void ResetReports();
void ResetAnswers();
void ResetIndicators();
void ResetLanguage();

} // namespace standin
