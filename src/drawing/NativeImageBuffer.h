// A picture in memory that the system can draw from: the shared screen buffer and all icons.
#pragma once

#include "drawing/ImageBuffer.h"
#include "platform/BitmapMemory.h"
#include "platform/LibraryModule.h"

// Rows are always width x 4 bytes.
class NativeImageBuffer : public ImageBuffer {
 public:
  NativeImageBuffer() = default;
  NativeImageBuffer(const NativeImageBuffer&) = delete;
  NativeImageBuffer& operator=(const NativeImageBuffer&) = delete;
  ~NativeImageBuffer() override;

  // As in the base, but a width or height below 1 leaves the picture unchanged.
  void Allocate(int32_t newWidth, int32_t newHeight, bool alignRows) override;
  void Release() override;

  // Puts a part of this picture on a drawing surface of the system. A null surface gets a line on
  // the error stream and nothing else.
  void BlitRect(SurfaceHandle target, int32_t sourceX, int32_t sourceY, int32_t partWidth,
                int32_t partHeight, int32_t targetX, int32_t targetY) const;

  // Loads the picture that a file name stands for from the module's resources: "Undo_Normal.png" is
  // UNDO_NORMAL_2X at every scale but 1. Between scales 1 and 2 it is reduced.
  //
  // Returns whether a picture was loaded; nothing is thrown.
  bool CreateWithResource(const char* fileName, ModuleHandle module, float wantedScale);

  // Loads and decodes one resource, its case not looked at. False, and the picture unchanged, where
  // there is none or it can't be decoded.
  bool LoadResourceBitmap(ModuleHandle module, const char* name, const char* type);

 private:
  BitmapMemory memory = {};
};
