// Controls with text, each in its states, which the events that lead there bring about.
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "drawing/Labeler.h"
#include "toolkit/ComboPopupMenu.h"
#include "toolkit/CustomPanel.h"
#include "toolkit/HelpPanel.h"
#include "toolkit/NumberParameter.h"
#include "toolkit/TextLink.h"
#include "toolkit/TextPanel.h"
#include "toolkit/ThemeColors.h"
#include "toolkit/TitledScrubber.h"
#include "tools/specimens/Pages.h"
#include "tools/specimens/StillWindow.h"

namespace {

constexpr std::array<const char*, 6> kLooks = {"Normal",  "Over",     "Pressed",
                                               "Focused", "Selected", "Disabled"};
constexpr int32_t kFirstColumn = 72;
constexpr int32_t kColumnStep = 94;
constexpr int32_t kFirstRow = 22;
constexpr int32_t kRowStep = 26;
constexpr int32_t kWidth = 88;
constexpr int32_t kHeight = 20;
constexpr Point kNowhere = {1, 1};

class TextControlsPanel : public CustomPanel {
 public:
  TextControlsPanel() : CustomPanel({0, 0, 640, 400}, 0) {
    SetWindowContext(&window);
    amount.SetValue(12.5);
    name.SetValue(49895.3);
    AddRows();
    AddTexts();
  }

  void PaintSpecimens(ImageBuffer& page) {
    DrawTree(GetLocalBounds(), {0, 0}, page);
    for (const Specimen& specimen : specimens) {
      Lead(specimen);
      DrawTree(specimen.place, {0, 0}, page);
      Leave(specimen);
    }
    opened->OpenList();
    DrawTree(opened->GetList()->GetGlobalBounds(), {0, 0}, page);
    HidePopup();
  }

  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override {
    CustomPanel::Paint(rect, buffer, position);
    const PaintArea area = AreaInBuffer(GetLocalBounds(), rect, position);
    TextStyle style;
    style.color = ThemeColors::Gray153;
    style.clip = &area.clip;
    SharedLabeler().SetFont(&FontSmall());
    for (const Caption& caption : captions) {
      SharedLabeler().DrawString(buffer, caption.text, area.bounds.left + caption.place.x,
                                 area.bounds.top + caption.place.y, TextAlignment::kLeft, style);
    }
  }

 private:
  struct Specimen {
    ControlPane* focusable;
    size_t look;
    Rect place;
    Point pointer;  // on what takes the press
  };
  struct Caption {
    Point place;
    const char* text;
  };
  // The control of a specimen, and the one in it that takes keys.
  struct Made {
    ControlPane* shown;
    ControlPane* focusable;
  };

  template <typename Control, typename... Arguments>
  Control* Add(Arguments... arguments) {
    auto control = std::make_unique<Control>(this, arguments...);
    AddChild(control.get(), true);
    return control.release();
  }

  void AddRows() {
    for (size_t i = 0; i < kLooks.size(); ++i) {
      captions.push_back({{kFirstColumn + static_cast<int32_t>(i) * kColumnStep, 8}, kLooks[i]});
    }
    AddRow(0, "Number", kWidth / 2, [this](const Rect& place) { return MakeNumber(place, 0); });
    AddRow(1, "No box", kWidth / 2,
           [this](const Rect& place) { return MakeNumber(place, kScrubberBare); });
    AddRow(2, "With caption", kWidth - 4, [this](const Rect& place) {
      auto* titled = Add<TitledScrubber>(place, std::string("Gain"), 32);
      titled->AddParameter(&amount);
      return Made{titled, titled->GetScrubber()};
    });
    AddRow(3, "Editor", kWidth / 2, [this](const Rect& place) {
      auto* editor = Add<TextEditor>(place);
      editor->SetText("Low drums");
      return Made{editor, editor};
    });
    AddRow(4, "Too long", kWidth / 2, [this](const Rect& place) {
      auto* editor = Add<TextEditor>(place);
      editor->SetText("A text that is wider than its field");
      return Made{editor, editor};
    });
    AddRow(5, "Titled, empty", kWidth / 2, [this](const Rect& place) {
      auto* editor = Add<TextEditor>(place);
      editor->SetTitle("Name");
      return Made{editor, editor};
    });
    AddRow(6, "Combo", kWidth - 8, [this](const Rect& place) {
      auto* combo = Add<ComboPopupMenu>(place);
      combo->SetLabels({"Kick", "Snare", "-", "Hi-hat"});
      combo->SetText("Snare");
      return Made{combo, combo->GetFirstChild()};
    });
    AddRow(7, "Link", 44, [this](const Rect& place) {
      auto* link = Add<TextLink>(place, std::string("Read more"));
      return Made{link, link};
    });
    AddRow(8, "Label", 44, [this](const Rect& place) {
      auto* label = Add<TextLabel>(place, std::string("Fixed text"));
      return Made{label, label};
    });
  }

  Made MakeNumber(const Rect& place, uint32_t flags) {
    auto* number = Add<NumericScrubber>(place, flags);
    number->AddParameter(&name);
    number->SetUnitText("Hz");
    return {number, number};
  }

  void AddRow(int32_t row, const char* caption, int32_t pressAt,
              const std::function<Made(const Rect&)>& make) {
    const int32_t top = kFirstRow + row * kRowStep;
    captions.push_back({{6, top + 5}, caption});
    for (size_t i = 0; i < kLooks.size(); ++i) {
      const int32_t left = kFirstColumn + static_cast<int32_t>(i) * kColumnStep;
      const Rect place = {left, top, left + kWidth, top + kHeight};
      const Made made = make(place);
      if (i == kLooks.size() - 1) made.shown->SetEnabled(false);
      specimens.push_back({made.focusable, i, place, {left + pressAt, top + kHeight / 2}});
    }
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
    opened = Add<ComboPopupMenu>(Rect{490, kTop, 630, kTop + kHeight});
    opened->SetLabels({"Kick", "Snare", "-", "Hi-hat"});
    opened->SetText("Snare");
  }

  void Lead(const Specimen& specimen) {
    const std::string look = kLooks[specimen.look];
    if (look == "Over" || look == "Pressed") MouseOver(specimen.pointer, {});
    if (look == "Pressed") MouseDown(specimen.pointer, {}, false, kLeftButton);
    if (look == "Focused" || look == "Selected") SetFocus(specimen.focusable, true);
    if (look == "Selected") {
      const Point inText = {specimen.pointer.x - 40, specimen.pointer.y};
      MouseDown(inText, {}, true, kLeftButton);
      MouseUp(inText, kLeftButton);
    }
  }

  void Leave(const Specimen& specimen) {
    HidePopup();
    MouseUp(specimen.pointer, kLeftButton);
    MouseOver(kNowhere, {});
    ClearFocus(false);
  }

  StillWindow window;
  NumberParameter amount{"Gain", {-100, 100, 0, 1, 2}};
  NumberParameter name{"Frequency", {0, 100000, 0, 1, 1}};
  std::vector<Specimen> specimens;
  std::vector<Caption> captions;
  ComboPopupMenu* opened = nullptr;
};

}  // namespace

void DrawTextControlsPage(ImageBuffer& page) {
  SetScreenScale(page.Scale());
  TextControlsPanel panel;
  panel.PaintSpecimens(page);
  SetScreenScale(1.0F);
}
