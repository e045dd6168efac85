// The colours of the toolkit.
#pragma once

#include "drawing/ColorBGRA.h"

struct ThemeColors {
  static constexpr ColorBGRA Black{0xFF000000};
  static constexpr ColorBGRA White{0xFFFFFFFF};
  static constexpr ColorBGRA Red{0xFFFF0000};
  static constexpr ColorBGRA Green{0xFF00FF00};
  static constexpr ColorBGRA Blue{0xFF0000FF};
  static constexpr ColorBGRA Cyan{0xFF00FFFF};
  static constexpr ColorBGRA Magenta{0xFFFF00FF};
  static constexpr ColorBGRA Yellow{0xFFFFFF00};
  static constexpr ColorBGRA Orange{0xFFFF8000};
  static constexpr ColorBGRA Gray230{0xFFE6E6E6};
  static constexpr ColorBGRA Gray204{0xFFCCCCCC};
  static constexpr ColorBGRA Gray192{0xFFC0C0C0};
  static constexpr ColorBGRA Gray179{0xFFB3B3B3};
  static constexpr ColorBGRA Gray153{0xFF999999};
  static constexpr ColorBGRA Gray128{0xFF808080};
  static constexpr ColorBGRA Gray102{0xFF666666};
  static constexpr ColorBGRA Gray76{0xFF4C4C4C};
  static constexpr ColorBGRA Gray51{0xFF333333};
  static constexpr ColorBGRA Gray25{0xFF191919};
  static constexpr ColorBGRA PanelBackground{0xFF2E2E2E};
  static constexpr ColorBGRA MenuFill{0xFF141414};
  static constexpr ColorBGRA MenuFrame{0xFF3C3C3C};
  static constexpr ColorBGRA PopupBody{0xFF020202};
};
