// Each kind of button in each of its states, overlapping ones, kinds of labels, and a menu.
#include <array>
#include <functional>
#include <memory>

#include "drawing/Fonts.h"
#include "drawing/Labeler.h"
#include "toolkit/ButtonControl.h"
#include "toolkit/QvButton.h"
#include "toolkit/QvIconButton.h"
#include "toolkit/QvIconButtonWithBG.h"
#include "toolkit/ThemeColors.h"
#include "tools/specimens/DemoIcon.h"
#include "tools/specimens/DemoMenu.h"
#include "tools/specimens/Pages.h"
#include "tools/specimens/SpecimenPanel.h"

namespace {

constexpr int32_t kFirstColumn = 92;
constexpr int32_t kColumnStep = 53;
constexpr int32_t kFirstRow = 28;
constexpr int32_t kRowStep = 30;
constexpr Point kButtonSize = {48, 20};
// Holds no buttons: room for a menu.
constexpr Rect kMenuArea = {520, 24, 632, 392};
template <typename Button>
Button* AddButton(ControlPane& panel, const Rect& place, bool toggle,
                  const ImageBuffer* strip = nullptr, const Font* font = nullptr) {
  auto button = std::make_unique<Button>(&panel, place, strip, toggle, font);
  panel.AddChild(button.get(), true);
  return button.release();
}

// Two states of a lamp side by side, the second one lit.
void DrawLamps(ImageBuffer& strip) {
  strip.Allocate(32, 16, false);
  strip.FillRect({1, 1, 15, 15}, ThemeColors::Gray51, 256, nullptr);
  strip.FillRect({17, 1, 31, 15}, ThemeColors::Orange, 256, nullptr);
  strip.DrawFrame({1, 1, 15, 15}, ThemeColors::Gray153, 1, 256, nullptr);
  strip.DrawFrame({17, 1, 31, 15}, ThemeColors::White, 1, 256, nullptr);
}

class ButtonPanel : public SpecimenPanel {
 public:
  // scale   of the picture that it will be painted on, 1 or 2, for the icons
  explicit ButtonPanel(float scale);

  // The buttons, then the menu.
  void PaintAll(ImageBuffer& page);

 private:
  using MakeButton = std::function<ButtonControl*(const Rect& place, bool toggle)>;

  void AddPlainKinds();
  void AddPlateAndIconKinds();
  void AddButtons(int32_t row, const char* caption, const MakeButton& makeButton);
  void AddOverlaps();
  void AddLabels();

  static constexpr std::array<NamedLook, 8> kLooks = {{{Look::kNormal, "Normal"},
                                                       {Look::kOver, "Over"},
                                                       {Look::kPressed, "Pressed"},
                                                       {Look::kDisabled, "Disabled"},
                                                       {Look::kOn, "On"},
                                                       {Look::kOnOver, "On, over"},
                                                       {Look::kFocused, "Focused"},
                                                       {Look::kSelected, "Selected"}}};
  static constexpr Columns kColumns = {kLooks, kFirstColumn, kColumnStep};

  float iconScale;
  ImageBuffer strip;
  DemoMenu menu;
};

ButtonPanel::ButtonPanel(float scale) : iconScale(scale) {
  DrawLamps(strip);
  AddPlainKinds();
  AddPlateAndIconKinds();
  AddOverlaps();
  AddLabels();
  AddCaption({kMenuArea.left, 10}, "Menu");
}

void ButtonPanel::AddPlainKinds() {
  AddColumnCaptions(kColumns, 10);
  AddButtons(0, "Plain", [this](const Rect& place, bool toggle) {
    return AddButton<ButtonControl>(*this, place, toggle);
  });
  AddButtons(1, "Own colours", [this](const Rect& place, bool toggle) {
    auto* button = AddButton<ButtonControl>(*this, place, toggle);
    button->SetFrame(6.0F, 2);
    button->SetStateColors(kButtonNormal,
                           {ThemeColors::White, ThemeColors::Gray51, ThemeColors::Orange});
    return button;
  });
  AddButtons(2, "Strip of pictures", [this](const Rect& place, bool toggle) {
    return AddButton<ButtonControl>(*this, place, toggle, &strip);
  });
}

void ButtonPanel::AddPlateAndIconKinds() {
  AddButtons(3, "Label on plate", [this](const Rect& place, bool toggle) {
    auto* button = AddButton<QvButton>(*this, place, toggle);
    if (!toggle) button->SetLabels("Copy", "Copy");
    return button;
  });
  AddButtons(4, "Icon", [this](const Rect& place, bool toggle) {
    auto* button = AddButton<QvIconButton>(*this, place, toggle);
    button->SetIcon(kButtonDisabled, MakeDemoIcon("Undo_Disabled.png", iconScale));
    button->SetIcon(kButtonNormal, MakeDemoIcon("Undo_Normal.png", iconScale));
    button->SetIcon(kButtonOver, MakeDemoIcon("Undo_Over.png", iconScale));
    // A toggle that is on shows nothing without an icon of its own for that.
    if (toggle) button->SetIcon(kButtonPressed, MakeDemoIcon("Redo_Normal.png", iconScale));
    if (toggle) button->SetIcon(kButtonPressedOver, MakeDemoIcon("Redo_Over.png", iconScale));
    return button;
  });
  AddButtons(5, "Icon on plate", [this](const Rect& place, bool toggle) {
    auto* button = AddButton<QvIconButtonWithBG>(*this, place, toggle);
    button->SetIcon(kButtonNormal, MakeDemoIcon("Flip_Normal.png", iconScale));
    button->SetIcon(kButtonOver, MakeDemoIcon("Flip_Over.png", iconScale));
    if (toggle) button->SetIcon(kButtonPressed, MakeDemoIcon("Flip_Normal.png", iconScale));
    return button;
  });
}

// One button for each look; those that are to stay down are toggles.
void ButtonPanel::AddButtons(int32_t row, const char* caption, const MakeButton& makeButton) {
  const int32_t top = kFirstRow + row * kRowStep;
  AddCaption({8, top + 5}, caption);
  constexpr Point kMiddle = {kButtonSize.x / 2, kButtonSize.y / 2};
  AddRow(kColumns, {top, kButtonSize, kMiddle, kMiddle},
         [&makeButton](const Rect& place, Look look) {
           return makeButton(place, look == Look::kOn || look == Look::kOnOver);
         });
}

// Pairs of which the second stands before the first, the pointer where both are.
void ButtonPanel::AddOverlaps() {
  constexpr int32_t kTop = 224;
  struct Pair {
    const char* caption;
    int32_t frontState;
    Look look;
  };
  constexpr std::array<Pair, 4> kPairs = {{{"Front, over", kStateNormal, Look::kOver},
                                           {"Front, pressed", kStateNormal, Look::kPressed},
                                           {"Disabled in front", kStateDisabled, Look::kOver},
                                           {"Hidden in front", kStateHidden, Look::kPressed}}};
  AddCaption({8, kTop + 13}, "Overlapping");
  int32_t left = kFirstColumn;
  for (const Pair& pair : kPairs) {
    AddCaption({left, kTop}, pair.caption);
    auto* back = AddButton<QvButton>(*this, {left, kTop + 14, left + 60, kTop + 38}, false);
    auto* front = AddButton<QvButton>(*this, {left + 34, kTop + 26, left + 94, kTop + 50}, false);
    back->SetLabels("Back", "Back");
    front->SetLabels("Front", "Front");
    front->SetState(pair.frontState);
    QvButton* reached = pair.frontState == kStateNormal ? front : back;
    const Point both = {left + 46, kTop + 32};
    AddSpecimen({pair.look, reached->GetBounds(), both, both});
    left += 106;
  }
}

// Alignments, insets, characters apart, a font of its own, and a label that is too long.
void ButtonPanel::AddLabels() {
  constexpr int32_t kTop = 296;
  AddCaption({8, kTop + 5}, "Labels");
  const auto add = [this](int32_t column, int32_t row, const char* label, const Font* font) {
    const int32_t left = kFirstColumn + column * 106;
    const int32_t top = kTop + row * kRowStep;
    auto* button = AddButton<ButtonControl>(*this, {left, top, left + 96, top + kButtonSize.y},
                                            false, nullptr, font);
    button->SetLabels(label, label);
    return button;
  };
  add(0, 0, "Left", nullptr)->SetLabelAlignment(0);
  add(1, 0, "Centred", nullptr);
  add(2, 0, "Right", nullptr)->SetLabelAlignment(2);
  add(3, 0, "Bold", &FontBold());
  ButtonControl* insetLeft = add(0, 1, "Inset left", nullptr);
  insetLeft->SetLabelAlignment(0);
  insetLeft->SetLabelInsets(6, 0);
  ButtonControl* insetRight = add(1, 1, "Inset right", nullptr);
  insetRight->SetLabelAlignment(2);
  insetRight->SetLabelInsets(0, 6);
  add(2, 1, "Apart", nullptr)->SetLabelTracking(8, 4);
  add(3, 1, "A label that is too long for its button", nullptr);
}

void ButtonPanel::PaintAll(ImageBuffer& page) {
  PaintSpecimens(page);
  menu.Open(*this, {kMenuArea.left, kMenuArea.top});
  DrawTree(kMenuArea, {0, 0}, page);
  menu.Close(*this);
}

}  // namespace

void DrawButtonPage(ImageBuffer& page) {
  SetScreenScale(page.Scale());
  ButtonPanel panel(page.Scale());
  panel.PaintAll(page);
  SetScreenScale(1.0F);
}
