// A panel with each kind of button in each of its states, overlapping ones, kinds of labels, and a
// menu.
#include "tools/specimens/DemoPanel.h"

#include <array>
#include <cstddef>
#include <memory>

#include "drawing/Fonts.h"
#include "drawing/Labeler.h"
#include "toolkit/QvButton.h"
#include "toolkit/QvIconButton.h"
#include "toolkit/QvIconButtonWithBG.h"
#include "toolkit/ThemeColors.h"
#include "tools/specimens/DemoIcon.h"
#include "tools/specimens/Pages.h"

namespace {

constexpr int32_t kPanelId = 1;
constexpr int32_t kFirstColumn = 92;
constexpr int32_t kColumnStep = 53;
constexpr int32_t kFirstRow = 28;
constexpr int32_t kRowStep = 30;
constexpr Point kButtonSize = {48, 20};
constexpr Point kNowhere = {0, 0};  // the pointer is over no button there
constexpr std::array<const char*, 8> kLookNames = {"Normal", "Over",     "Pressed", "Disabled",
                                                   "On",     "On, over", "Focused", "Selected"};

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

}  // namespace

DemoPanel::DemoPanel(float scale)
    : CustomPanel({0, 0, kWidth, kHeight}, kPanelId), iconScale(scale) {
  SetWindowContext(&window);
  DrawLamps(strip);
  AddPlainKinds();
  AddPlateAndIconKinds();
  AddOverlaps();
  AddLabels();
  captions.push_back({{kMenuArea.left, 10}, "Menu"});
}

void DemoPanel::AddPlainKinds() {
  for (size_t i = 0; i < kLookNames.size(); ++i) {
    captions.push_back({{kFirstColumn + static_cast<int32_t>(i) * kColumnStep, 10}, kLookNames[i]});
  }
  AddRow(0, "Plain", [this](const Rect& place, bool toggle) {
    return AddButton<ButtonControl>(*this, place, toggle);
  });
  AddRow(1, "Own colours", [this](const Rect& place, bool toggle) {
    auto* button = AddButton<ButtonControl>(*this, place, toggle);
    button->SetFrame(6.0F, 2);
    button->SetStateColors(kButtonNormal,
                           {ThemeColors::White, ThemeColors::Gray51, ThemeColors::Orange});
    return button;
  });
  AddRow(2, "Strip of pictures", [this](const Rect& place, bool toggle) {
    return AddButton<ButtonControl>(*this, place, toggle, &strip);
  });
}

void DemoPanel::AddPlateAndIconKinds() {
  AddRow(3, "Label on plate", [this](const Rect& place, bool toggle) {
    auto* button = AddButton<QvButton>(*this, place, toggle);
    if (!toggle) button->SetLabels("Copy", "Copy");
    return button;
  });
  AddRow(4, "Icon", [this](const Rect& place, bool toggle) {
    auto* button = AddButton<QvIconButton>(*this, place, toggle);
    button->SetIcon(kButtonDisabled, MakeDemoIcon("Undo_Disabled.png", iconScale));
    button->SetIcon(kButtonNormal, MakeDemoIcon("Undo_Normal.png", iconScale));
    button->SetIcon(kButtonOver, MakeDemoIcon("Undo_Over.png", iconScale));
    // A toggle that is on shows nothing without an icon of its own for that.
    if (toggle) button->SetIcon(kButtonPressed, MakeDemoIcon("Redo_Normal.png", iconScale));
    if (toggle) button->SetIcon(kButtonPressedOver, MakeDemoIcon("Redo_Over.png", iconScale));
    return button;
  });
  AddRow(5, "Icon on plate", [this](const Rect& place, bool toggle) {
    auto* button = AddButton<QvIconButtonWithBG>(*this, place, toggle);
    button->SetIcon(kButtonNormal, MakeDemoIcon("Flip_Normal.png", iconScale));
    button->SetIcon(kButtonOver, MakeDemoIcon("Flip_Over.png", iconScale));
    if (toggle) button->SetIcon(kButtonPressed, MakeDemoIcon("Flip_Normal.png", iconScale));
    return button;
  });
}

// One button for each look; those that are to stay down are toggles.
void DemoPanel::AddRow(int32_t row, const char* caption, const MakeButton& makeButton) {
  const int32_t top = kFirstRow + row * kRowStep;
  captions.push_back({{8, top + 5}, caption});
  int32_t left = kFirstColumn;
  for (size_t i = 0; i < kLookNames.size(); ++i, left += kColumnStep) {
    const auto look = static_cast<Look>(i);
    const Rect place = {left, top, left + kButtonSize.x, top + kButtonSize.y};
    ButtonControl* button = makeButton(place, look == Look::kOn || look == Look::kOnOver);
    if (look == Look::kDisabled) button->SetEnabled(false);
    if (look == Look::kSelected) button->SetState(kStateSelected);
    specimens.push_back({button, look, {left + kButtonSize.x / 2, top + kButtonSize.y / 2}});
  }
}

// Pairs of which the second stands before the first, the pointer where both are.
void DemoPanel::AddOverlaps() {
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
  captions.push_back({{8, kTop + 13}, "Overlapping"});
  int32_t left = kFirstColumn;
  for (const Pair& pair : kPairs) {
    captions.push_back({{left, kTop}, pair.caption});
    auto* back = AddButton<QvButton>(*this, {left, kTop + 14, left + 60, kTop + 38}, false);
    auto* front = AddButton<QvButton>(*this, {left + 34, kTop + 26, left + 94, kTop + 50}, false);
    back->SetLabels("Back", "Back");
    front->SetLabels("Front", "Front");
    front->SetState(pair.frontState);
    QvButton* reached = pair.frontState == kStateNormal ? front : back;
    specimens.push_back({reached, pair.look, {left + 46, kTop + 32}});
    left += 106;
  }
}

// Alignments, insets, characters apart, a font of its own, and a label that is too long.
void DemoPanel::AddLabels() {
  constexpr int32_t kTop = 296;
  captions.push_back({{8, kTop + 5}, "Labels"});
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

void DemoPanel::PaintSpecimens(ImageBuffer& page) {
  DrawTree(GetLocalBounds(), {0, 0}, page);
  for (const Specimen& specimen : specimens) {
    Lead(specimen);
    DrawTree(specimen.button->GetBounds(), {0, 0}, page);
    Leave(specimen);
  }
  menu.Open(*this, {kMenuArea.left, kMenuArea.top});
  DrawTree(kMenuArea, {0, 0}, page);
  menu.Close(*this);
}

void DemoPanel::Lead(const Specimen& specimen) {
  switch (specimen.look) {
    case Look::kOver:
      MouseOver(specimen.pointer, {});
      break;
    case Look::kPressed:
      MouseOver(specimen.pointer, {});
      MouseDown(specimen.pointer, {}, false, kLeftButton);
      break;
    case Look::kOn:
      Click(specimen.pointer);
      break;
    case Look::kOnOver:
      Click(specimen.pointer);
      MouseOver(specimen.pointer, {});
      break;
    case Look::kFocused:
      SetFocus(specimen.button, true);
      break;
    case Look::kNormal:
    case Look::kDisabled:
    case Look::kSelected:
      break;
  }
}

// Brings the button back, so that the panel can be painted again.
void DemoPanel::Leave(const Specimen& specimen) {
  if (specimen.look == Look::kPressed) MouseUp(specimen.pointer, kLeftButton);
  if (specimen.look == Look::kOn || specimen.look == Look::kOnOver) Click(specimen.pointer);
  MouseOver(kNowhere, {});
  ClearFocus(true);
}

void DemoPanel::Click(const Point& pointer) {
  MouseOver(pointer, {});
  MouseDown(pointer, {}, false, kLeftButton);
  MouseUp(pointer, kLeftButton);
  MouseOver(kNowhere, {});
}

void DemoPanel::Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) {
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

void DrawButtonPage(ImageBuffer& page) {
  SetScreenScale(page.Scale());
  DemoPanel panel(page.Scale());
  panel.PaintSpecimens(page);
  SetScreenScale(1.0F);
}
