// A panel of controls, each in one look of its own, with captions beside them.
#include "tools/specimens/SpecimenPanel.h"

#include "drawing/Fonts.h"
#include "drawing/Labeler.h"
#include "toolkit/PaintArea.h"
#include "toolkit/RectAlgebra.h"
#include "toolkit/ThemeColors.h"

namespace {

constexpr int32_t kPanelId = 1;
constexpr Point kNowhere = {0, 0};  // the pointer is over no control there

}  // namespace

SpecimenPanel::SpecimenPanel() : CustomPanel({0, 0, kWidth, kHeight}, kPanelId) {
  SetWindowContext(&window);
}

void SpecimenPanel::AddCaption(const Point& place, const char* text) {
  captions.push_back({place, text});
}

void SpecimenPanel::AddColumnCaptions(const Columns& columns, int32_t top) {
  int32_t left = columns.left;
  for (const NamedLook& column : columns.looks) {
    AddCaption({left, top}, column.name);
    left += columns.step;
  }
}

void SpecimenPanel::AddRow(const Columns& columns, const Row& row, const MakeSpecimen& make) {
  int32_t left = columns.left;
  for (const NamedLook& column : columns.looks) {
    const Rect place = {left, row.top, left + row.size.x, row.top + row.size.y};
    ControlPane* const control = make(place, column.look);
    if (column.look == Look::kDisabled) control->SetEnabled(false);
    if (column.look == Look::kSelected) control->SetState(kStateSelected);
    AddSpecimen({column.look, place, MovedBy(row.pointer, left, row.top),
                 MovedBy(row.keyPoint, left, row.top)});
    left += columns.step;
  }
}

void SpecimenPanel::PaintSpecimens(ImageBuffer& page) {
  DrawTree(GetLocalBounds(), {0, 0}, page);
  for (const Specimen& specimen : specimens) {
    Lead(specimen);
    DrawTree(specimen.place, {0, 0}, page);
    Leave(specimen);
  }
}

void SpecimenPanel::Lead(const Specimen& specimen) {
  switch (specimen.look) {
    case Look::kOver:
      MouseOver(specimen.pointer, {});
      break;
    case Look::kPressed:
      Press(specimen.pointer, false);
      break;
    case Look::kOn:
      Click(specimen.pointer);
      break;
    case Look::kOnOver:
      Click(specimen.pointer);
      MouseOver(specimen.pointer, {});
      break;
    case Look::kFocused:
      SetFocus(HitTest(specimen.keyPoint), true);
      break;
    case Look::kTextSelected:
      SetFocus(HitTest(specimen.keyPoint), true);
      Click(specimen.keyPoint, true);
      break;
    case Look::kNormal:
    case Look::kDisabled:
    case Look::kSelected:
      break;
  }
}

// Brings the control back, so that the panel can be painted again.
void SpecimenPanel::Leave(const Specimen& specimen) {
  if (specimen.look == Look::kPressed) MouseUp(specimen.pointer, kLeftButton);
  if (specimen.look == Look::kOn || specimen.look == Look::kOnOver) Click(specimen.pointer);
  HidePopup();
  MouseOver(kNowhere, {});
  ClearFocus(false);
}

void SpecimenPanel::Press(const Point& point, bool isDouble) {
  MouseOver(point, {});
  MouseDown(point, {}, isDouble, kLeftButton);
}

void SpecimenPanel::Click(const Point& point, bool isDouble) {
  Press(point, isDouble);
  MouseUp(point, kLeftButton);
  MouseOver(kNowhere, {});
}

void SpecimenPanel::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
  CustomPanel::Paint(rect, buffer, position);
  const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
  TextStyle style;
  style.color = ThemeColors::Gray153;
  style.clip = &area.clip;
  SharedLabeler().SetFont(&FontSmall());
  for (const Caption& caption : captions) {
    SharedLabeler().DrawString(buffer, caption.text.c_str(), area.bounds.left + caption.place.x,
                               area.bounds.top + caption.place.y, TextAlignment::kLeft, style);
  }
}
