// Controls with text, each in its states, which the events that lead there bring about.
#include <array>
#include <functional>
#include <memory>
#include <string>

#include "drawing/Labeler.h"
#include "toolkit/ComboPopupMenu.h"
#include "toolkit/HelpPanel.h"
#include "toolkit/NumberParameter.h"
#include "toolkit/TextLink.h"
#include "toolkit/TextPanel.h"
#include "toolkit/ThemeColors.h"
#include "toolkit/TitledScrubber.h"
#include "tools/specimens/Pages.h"
#include "tools/specimens/SpecimenPanel.h"

namespace {

constexpr int32_t kFirstColumn = 72;
constexpr int32_t kColumnStep = 94;
constexpr int32_t kFirstRow = 22;
constexpr int32_t kRowStep = 26;
constexpr Point kControlSize = {88, 20};
constexpr int32_t kToKeys = 40;  // from where the mouse presses to the left

class TextControlsPanel : public SpecimenPanel {
 public:
  TextControlsPanel() {
    amount.SetValue(12.5);
    name.SetValue(49895.3);
    AddRows();
    AddTexts();
  }

  // The controls, then the list of one.
  void PaintAll(ImageBuffer& page) {
    PaintSpecimens(page);
    opened->OpenList();
    DrawTree(opened->GetList()->GetGlobalBounds(), {0, 0}, page);
    HidePopup();
  }

 private:
  static constexpr std::array<NamedLook, 6> kLooks = {{{Look::kNormal, "Normal"},
                                                       {Look::kOver, "Over"},
                                                       {Look::kPressed, "Pressed"},
                                                       {Look::kFocused, "Focused"},
                                                       {Look::kTextSelected, "Selected"},
                                                       {Look::kDisabled, "Disabled"}}};
  static constexpr Columns kColumns = {kLooks, kFirstColumn, kColumnStep};

  template <typename Control, typename... Arguments>
  Control* Add(Arguments... arguments) {
    auto control = std::make_unique<Control>(this, arguments...);
    AddChild(control.get(), true);
    return control.release();
  }

  void AddRows() {
    AddColumnCaptions(kColumns, 8);
    AddControls(0, "Number", kControlSize.x / 2,
                [this](const Rect& place) { return MakeNumber(place, 0); });
    AddControls(1, "No box", kControlSize.x / 2,
                [this](const Rect& place) { return MakeNumber(place, kScrubberBare); });
    AddControls(2, "With caption", kControlSize.x - 4, [this](const Rect& place) {
      auto* titled = Add<TitledScrubber>(place, std::string("Gain"), 32);
      titled->AddParameter(&amount);
      return titled;
    });
    AddControls(3, "Editor", kControlSize.x / 2, [this](const Rect& place) {
      auto* editor = Add<TextEditor>(place);
      editor->SetText("Low drums");
      return editor;
    });
    AddControls(4, "Too long", kControlSize.x / 2, [this](const Rect& place) {
      auto* editor = Add<TextEditor>(place);
      editor->SetText("A text that is wider than its field");
      return editor;
    });
    AddControls(5, "Titled, empty", kControlSize.x / 2, [this](const Rect& place) {
      auto* editor = Add<TextEditor>(place);
      editor->SetTitle("Name");
      return editor;
    });
    AddControls(6, "Combo", kControlSize.x - 8, [this](const Rect& place) {
      auto* combo = Add<ComboPopupMenu>(place);
      combo->SetLabels({"Kick", "Snare", "-", "Hi-hat"});
      combo->SetText("Snare");
      return combo;
    });
    AddControls(7, "Link", 44, [this](const Rect& place) {
      auto* link = Add<TextLink>(place, std::string("Read more"));
      return link;
    });
    AddControls(8, "Label", 44, [this](const Rect& place) {
      auto* label = Add<TextLabel>(place, std::string("Fixed text"));
      return label;
    });
  }

  ControlPane* MakeNumber(const Rect& place, uint32_t flags) {
    auto* number = Add<NumericScrubber>(place, flags);
    number->AddParameter(&name);
    number->SetUnitText("Hz");
    return number;
  }

  // pressAt   where the mouse presses a control, from its left
  void AddControls(int32_t row, const char* caption, int32_t pressAt,
                   const std::function<ControlPane*(const Rect&)>& make) {
    const int32_t top = kFirstRow + row * kRowStep;
    AddCaption({6, top + 5}, caption);
    AddRow(
        kColumns,
        {top, kControlSize, {pressAt, kControlSize.y / 2}, {pressAt - kToKeys, kControlSize.y / 2}},
        [&make](const Rect& place, Look) { return make(place); });
  }

  void AddTexts() {
    constexpr int32_t kTop = 262;
    const std::string text =
        "A block of text is broken into lines between its words, at the width of the panel.\n\n"
        "A new line begins a line; AWordThatIsWiderThanTheWholePanelBreaksInside.";
    Add<TextPanel>(Rect{8, kTop, 178, 392}, text);
    Add<TextPanel>(Rect{190, kTop, 330, 330}, text)->SetAlignment(TextAlignment::kCentre);
    Add<TextPanel>(Rect{190, 336, 330, 392}, text)->SetEnabled(false);
    auto* help = Add<HelpPanel>(Rect{342, kTop, 482, 330});
    help->SetTitle("Help");
    auto* helped = Add<TextLabel>(Rect{490, 376, 630, 392}, std::string("A label with help"));
    helped->SetHelpText("What the control under the pointer is for, as long as it is there.");
    help->ShowHelpAt(*this, {500, 384});
    auto* off = Add<HelpPanel>(Rect{342, 336, 482, 392});
    off->SetTitle("Disabled");
    off->SetText("Nothing to help with.");
    off->SetEnabled(false);
    opened = Add<ComboPopupMenu>(Rect{490, kTop, 630, kTop + kControlSize.y});
    opened->SetLabels({"Kick", "Snare", "-", "Hi-hat"});
    opened->SetText("Snare");
  }

  NumberParameter amount{"Gain", {-100, 100, 0, 1, 2}};
  NumberParameter name{"Frequency", {0, 100000, 0, 1, 1}};
  ComboPopupMenu* opened = nullptr;
};

}  // namespace

void DrawTextControlsPage(ImageBuffer& page) {
  SetScreenScale(page.Scale());
  TextControlsPanel panel;
  panel.PaintAll(page);
  SetScreenScale(1.0F);
}
