// How Reset restores the parts of the stand-in's state, each of which is in the file that owns it.
#pragma once

namespace standin {

void ResetScript();
void ResetReleases();
void ResetReports();
void ResetAnswers();
void ResetIndicators();
void ResetLanguage();

} // namespace standin
