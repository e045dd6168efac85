// A panel of controls, each in one look of its own, with captions beside them.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "toolkit/CustomPanel.h"
#include "tools/specimens/StillWindow.h"

// How a control is to look; the events that lead there come as it is painted.
enum class Look {
  kNormal,
  kOver,
  kPressed,
  kDisabled,
  kOn,      // of a toggle
  kOnOver,  //
  kFocused,
  kSelected,
  kTextSelected,
};

struct NamedLook {
  Look look = Look::kNormal;
  const char* name = "";
};

class SpecimenPanel : public CustomPanel {
 public:
  static constexpr int32_t kWidth = 640;
  static constexpr int32_t kHeight = 400;

  SpecimenPanel();

  void AddCaption(const Point& place, const char* text);
  // Paints all, bringing one control after the other into its look and back.
  void PaintSpecimens(ImageBuffer& page);
  void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position) override;

 protected:
  struct Specimen {
    Look look = Look::kNormal;
    Rect place;
    Point pointer;   // on what takes the mouse
    Point keyPoint;  // on what takes the focus
  };
  // A column for each look, from the left.
  struct Columns {
    std::span<const NamedLook> looks;
    int32_t left = 0;
    int32_t step = 0;
  };
  // A row of controls, one in each column.
  struct Row {
    int32_t top = 0;
    Point size;      // of a control
    Point pointer;   // from the control's top left, as in Specimen
    Point keyPoint;  //
  };
  // Makes a control for a look; the panel takes it over.
  using MakeSpecimen = std::function<ControlPane*(const Rect& place, Look look)>;

  void AddColumnCaptions(const Columns& columns, int32_t top);
  void AddRow(const Columns& columns, const Row& row, const MakeSpecimen& make);
  void AddSpecimen(const Specimen& specimen) { specimens.push_back(specimen); }

 private:
  struct Caption {
    Point place;
    std::string text;
  };

  void Lead(const Specimen& specimen);
  void Leave(const Specimen& specimen);
  void Press(const Point& point, bool isDouble);
  void Click(const Point& point, bool isDouble = false);

  StillWindow window;
  std::vector<Specimen> specimens;
  std::vector<Caption> captions;
};
