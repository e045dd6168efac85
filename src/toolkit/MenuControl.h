// A list of text rows that can be pointed at and chosen from.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "drawing/ColorBGRA.h"
#include "drawing/Fonts.h"
#include "toolkit/MenuItem.h"
#include "toolkit/PopupEnclosure.h"
#include "toolkit/ThemeColors.h"

struct MenuRowColors {
  ColorBGRA text;
  ColorBGRA back;  // alpha 0: nothing is filled
};

// Labels are what the list shows, any bytes; "-" is a separator. Items are made out of them by
// RebuildItems; labels that change later show at the next call.
class MenuControl : public PopupEnclosure {
 public:
  // rowFont           null means FontMenu
  // selectedRowFont   of the row that is selected when the rows are made; null means rowFont
  MenuControl(ControlPane* ownerPane, const Rect& initialBounds, const Font* rowFont = nullptr,
              const Font* selectedRowFont = nullptr);

  void EndTracking() override;  // closes the list
  void OnMouseDown(WindowContext* context, const Point& point) override;
  void OnMouseDrag(WindowContext* context, const Point& point) override;
  // Ends a choice: flashes the row for twice 50 ms and tells owner and holder. A disabled row
  // isn't chosen; outside the rows the list is left with none selected. The list may be deleted
  // by those who are told.
  void OnMouseUp(WindowContext* context, const Point& point) override;
  int32_t GetCursorAt(WindowContext* context, const Point& point,
                      const Modifiers& modifiers) override;
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;
  void Rebuild() override;

  // Makes the items and gives the list its size; left and top stay. No repaint follows.
  //
  // newLabels   take the place of the present ones; null keeps those
  virtual void RebuildItems(const std::vector<std::string>* newLabels);
  virtual void ClearItems();
  // Whether there are as many items as labels.
  virtual bool IsBuilt() const;
  virtual void ClearAll();
  // Draws one row; `rect` is the row's and `clip` cuts it, both in the buffer's logical pixels. An
  // index outside the items draws nothing.
  virtual void PaintItem(int32_t index, ImageBuffer& buffer, const Rect& rect, const Rect& clip);

  void AddLabel(std::string label) { labels.push_back(std::move(label)); }
  const std::vector<std::string>& GetLabels() const { return labels; }
  int32_t GetItemCount() const { return static_cast<int32_t>(items.size()); }
  // Null outside the items.
  MenuItem* GetItem(int32_t index) const;
  // Local; all zero for an index outside the items.
  Rect GetRowRect(int32_t index) const;
  // The row at a local point, -1 for none. Separators aren't found.
  int32_t FindRow(const Point& point) const;

  int32_t GetSelectedIndex() const { return selectedIndex; }
  void SetSelectedIndex(int32_t index) { selectedIndex = index; }
  int32_t GetHoverIndex() const { return hoverIndex; }
  // Leaves no row selected and none under the pointer.
  void ForgetRows();
  bool IsUnclamped() const { return unclamped; }

 protected:
  // What a text row of this list looks like beside its colours.
  struct RowLook {
    int32_t indent = 0;     // from the row's left edge to the text; the mark stands in between
    const char* mark = "";  // in FontSymbols
  };

  // Steps of Paint and PaintItem, for lists that replace them.
  void PaintItems(const Rect& rect, ImageBuffer& buffer, const Point& position);
  void PaintTextRow(int32_t index, ImageBuffer& buffer, const Rect& rect, const Rect& clip,
                    const RowLook& look) const;

  int32_t selectedIndex = 0;
  int32_t hoverIndex = -1;
  const Font* font;
  const Font* selectedFont;
  std::vector<std::unique_ptr<MenuItem>> items;
  int32_t marginX = 6;
  int32_t marginY = 6;
  int32_t minContentWidth = 100;
  int32_t maxContentWidth = 500;
  MenuRowColors disabledColors{ColorBGRA(0xFF404040), ColorBGRA(0)};
  MenuRowColors normalColors{ColorBGRA(0xFFA5A5A5), ColorBGRA(0)};
  MenuRowColors hoverColors{ThemeColors::White, ColorBGRA(0)};
  MenuRowColors selectedColors{ThemeColors::White, ColorBGRA(0)};
  std::vector<std::string> labels;
  bool unclamped = true;  // isn't moved into bounds when it opens

 private:
  // The first row that ends below a local y; the number of items where none does.
  int32_t FirstRowBelow(int32_t y) const;
  const MenuRowColors& RowColors(int32_t index) const;
  // Both tell whether this list is still there.
  bool FlashRow(int32_t index);
  bool AnnounceChoice(int32_t index);
  void RedrawIfOpen();
};
