// The list that a control keeps of those who watch it.
#include "toolkit/ControlWatch.h"

#include "toolkit/ControlPane.h"

ControlWatch::ControlWatch(ControlPane* watched) {
  Begin(watched);
}

ControlWatch::ControlWatch(const ControlWatch& other) {
  Begin(other.control);
}

ControlWatch& ControlWatch::operator=(const ControlWatch& other) {
  if (this != &other) *this = other.control;
  return *this;
}

ControlWatch& ControlWatch::operator=(ControlPane* watched) {
  End();
  Begin(watched);
  return *this;
}

ControlWatch::~ControlWatch() {
  End();
}

void ControlWatch::Begin(ControlPane* watched) {
  if (watched == nullptr) return;
  control = watched;
  next = watched->firstWatch;
  pointerToThis = &watched->firstWatch;
  watched->firstWatch = this;
  if (next != nullptr) next->pointerToThis = &next;
}

void ControlWatch::End() {
  if (control == nullptr) return;
  *pointerToThis = next;
  if (next != nullptr) next->pointerToThis = pointerToThis;
  control = nullptr;
  next = nullptr;
  pointerToThis = nullptr;
}
