// No painter: drawings are recorded alone.
#include "workbench/drawbot/PictureCanvas.h"

bool CanPaintPictures() {
  return false;
}

std::unique_ptr<PictureCanvas> NewPictureCanvas(const CanvasArea& /*area*/, PF_Pixel8 /*ground*/) {
  return nullptr;
}
