// The content editor's guard over one action of the user. Internal.
#pragma once

#include <utility>

#include "dialogs/editors/ContentEditor.h"

namespace tq {

class ContentEditor::Edit {
public:
  explicit Edit(ContentEditor& editor)
      : editor_(editor), steps_(editor.contents_.Steps()), before_(editor.Selection()) {}
  ~Edit() {
    if (editor_.contents_.Steps() != steps_)
      editor_.contents_.KeepSelection(std::move(before_), editor_.Selection());
  }
  Edit(const Edit&) = delete;
  Edit& operator=(const Edit&) = delete;

private:
  ContentEditor& editor_;
  const std::size_t steps_;
  RowSelection before_;
};

} // namespace tq
