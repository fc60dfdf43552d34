// From a template's rows to windows.
#include "platform/framework/window/ResourceContext.h"
#include "platform/headless/HitTest.h"

namespace tq::headless {

namespace {

CString TextOf(const TemplateRow& row, const Resources& resources) {
  const char* const utf8 = resources.traditional ? row.traditional : row.simplified;
  if (utf8 == nullptr)
    return CString();
  return resources.toAnsi == nullptr ? CString(utf8) : resources.toAnsi(utf8);
}

TextCode CodeOf(const Resources& resources) {
  if (resources.toAnsi == nullptr)
    return TextCode::Utf8;
  return resources.traditional ? TextCode::Big5 : TextCode::Gbk;
}

const TemplateRow* FindTemplate(const Resources& resources, unsigned id) {
  for (size_t i = 0; i < resources.rowCount; ++i) {
    const TemplateRow& row = resources.rows[i];
    if (row.kind == ControlKind::Dialog && static_cast<unsigned>(row.id) == id)
      return &row;
  }
  return nullptr;
}

std::unique_ptr<Control> MakeControl(const TemplateRow& row, const Resources& resources,
                                     Dialog& owner) {
  auto control = std::make_unique<Control>();
  control->owner = &owner;
  control->kind = row.kind;
  control->id = row.id;
  control->style = row.style;
  control->place = {row.x, row.y, row.width, row.height};
  control->rows.SetPage(RowsInSight(row.kind, control->place));
  if (control->IsVirtual())
    control->rows.MakeVirtual();
  control->text = TextOf(row, resources);
  control->visible = (row.style & TemplateHidden) == 0;
  control->enabled = (row.style & TemplateDisabled) == 0;
  Register(*control);
  return control;
}

} // namespace

std::unique_ptr<Dialog> MakeDialog(unsigned templateId) {
  const Resources& resources = ResourceContext::Current();
  const TemplateRow* row = FindTemplate(resources, templateId);
  if (row == nullptr)
    return nullptr;
  auto dialog = std::make_unique<Dialog>();
  dialog->text = TextOf(*row, resources);
  dialog->visible = false;
  dialog->place = {row->x, row->y, row->width, row->height};
  dialog->code = CodeOf(resources);
  Register(*dialog);
  const TemplateRow* const end = resources.rows + resources.rowCount;
  for (++row; row != end && row->kind != ControlKind::Dialog; ++row)
    dialog->controls.push_back(MakeControl(*row, resources, *dialog));
  return dialog;
}

} // namespace tq::headless
