// Beginning and end of a control, and who owns whom.
#include "toolkit/ControlPane.h"

#include <cstdio>

#include "toolkit/ChildWalk.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/DestroyedControls.h"
#include "toolkit/PopupContextMenu.h"
#include "toolkit/TopControlPane.h"

namespace {

// A child is deleted inside its owner's destructor, one level of calls for one of the tree. Below
// this depth children wait in a list instead, without an owner, until the outermost is done.
constexpr int kNestedDeletions = 64;

int deletionDepth = 0;
ControlPane* firstWaiting = nullptr;

}  // namespace

ControlPane::ControlPane(ControlPane* ownerPane, const Rect& initialBounds)
    : bounds(initialBounds) {
  DestroyedControls::ForgetAll();
  SetOwner(ownerPane);
}

ControlPane::~ControlPane() {
  EndWatchesAndWalks();
  if (isLinked) owner->Unlink(this);
  DeleteSubtree();
  DestroyedControls::Enter(this);
  ReplaceContextMenu(nullptr);
  while (firstWard != nullptr) firstWard->SetOwner(nullptr);
  LeaveList();
}

void ControlPane::OnPopupContextMenu(PopupContextMenu* /*menu*/, ControlPane* /*menuControl*/,
                                     int32_t /*index*/) {}

void ControlPane::DeleteSubtree() {
  while (!children.empty()) {
    ControlPane* const child = children.front();
    Unlink(child);
    DeleteUnlinked(child);
  }
}

void ControlPane::DeleteUnlinked(ControlPane* control) {
  if (deletionDepth == kNestedDeletions) {
    control->SetOwner(nullptr);
    control->EnterList(&firstWaiting);
    return;
  }
  ++deletionDepth;
  delete control;
  if (deletionDepth == 1) {
    // Each takes itself out of the list, which the analyzer doesn't follow.
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete)
    while (firstWaiting != nullptr) delete firstWaiting;
  }
  --deletionDepth;
}

void ControlPane::EnterList(ControlPane** head) {
  wardLink = {*head, head};
  *head = this;
  if (wardLink.next != nullptr) wardLink.next->wardLink.pointerToThis = &wardLink.next;
}

void ControlPane::LeaveList() {
  if (wardLink.pointerToThis == nullptr) return;
  *wardLink.pointerToThis = wardLink.next;
  if (wardLink.next != nullptr) wardLink.next->wardLink.pointerToThis = wardLink.pointerToThis;
  wardLink = {};
}

void ControlPane::SetOwner(ControlPane* newOwner) {
  LeaveList();
  owner = newOwner;
  if (newOwner != nullptr) EnterList(&newOwner->firstWard);
}

void ControlPane::EndWatchesAndWalks() {
  while (firstWatch != nullptr) firstWatch->End();
  while (firstWalk != nullptr) firstWalk->End();
}

TopControlPane* ControlPane::GetTopOwnerPtr() {
  ControlPane* last = this;
  while (last->owner != nullptr) last = last->owner;
  auto* const top = dynamic_cast<TopControlPane*>(last);
  if (top == nullptr) std::fputs("GetTopOwnerPtr == NULL\n", stderr);
  return top;
}

void ControlPane::SetContextMenu(PopupContextMenu* menu) {
  ReplaceContextMenu(menu);
}

void ControlPane::ReplaceContextMenu(PopupContextMenu* menu) {
  PopupContextMenu* const held = contextMenuWatch ? contextMenu : nullptr;
  if (menu == held) return;
  contextMenu = menu;
  contextMenuWatch = menu;
  delete held;
}

PopupContextMenu* ControlPane::GetContextMenu(WindowContext* /*context*/, const Point& /*point*/,
                                              bool* /*handled*/) {
  return contextMenuWatch ? contextMenu : nullptr;
}
