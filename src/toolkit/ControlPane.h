// A control: a rectangle in a tree that paints itself and takes the mouse.
#pragma once

#include <cstdint>
#include <list>
#include <vector>

#include "drawing/ImageBuffer.h"
#include "drawing/NativeImageBuffer.h"
#include "drawing/Rect.h"
#include "toolkit/ControlTypes.h"
#include "toolkit/ControlWatch.h"
#include "toolkit/LayoutAnchor.h"
#include "toolkit/Parameter.h"
#include "toolkit/PopupContextMenuDelegate.h"
#include "toolkit/Tweens.h"
#include "toolkit/WindowContext.h"

class ChildWalk;
class PopupContextMenu;
class TopControlPane;

// Three spaces. Local: (0, 0) is the control's top left. Owner: the owner's local space, in which
// the bounds stand. Global: the owner space of the root, which is where the mouse arrives. Edges
// beyond what an int32 holds stop there.
//
// An owner deletes its children. Any call of a hook, a listener, a Notify or a paint may delete
// controls, this one included: see ControlWatch and DestroyedControls. Questions (const operations,
// hit tests) leave the tree as it is.
//
// Operations on a subtree nest one call a level; trees of 10000 levels are fine.
class ControlPane : public PopupContextMenuDelegate {
 public:
  // Doesn't link the control into the owner's children; AddChild does.
  ControlPane(ControlPane* ownerPane, const Rect& initialBounds);
  ControlPane(const ControlPane&) = delete;
  ControlPane& operator=(const ControlPane&) = delete;

  void OnPopupContextMenu(PopupContextMenu* menu, ControlPane* menuControl, int32_t index) override;
  // Deletes all children and the context menu. A control that is still linked takes itself out of
  // its owner's children.
  ~ControlPane() override;

  // Children, the topmost first. A child that is linked already, a root, this control itself and
  // its ancestors are refused; null is ignored.
  virtual void AddChild(ControlPane* child, bool atFront);
  virtual void InsertChild(ControlPane* child, int32_t index);
  // The caller owns the child then; its owner field stays. Nothing happens to another's child.
  virtual void RemoveChild(ControlPane* child);
  virtual void DeleteChild(ControlPane* child);
  virtual void DeleteAllChildren();
  virtual void MoveToFront();
  virtual void MoveChildToFront(ControlPane* child);
  virtual void MoveToBack();
  virtual void MoveChildToBack(ControlPane* child);

  // A ControlState.
  virtual void SetState(int32_t newState);
  virtual int32_t GetState() const;
  virtual bool IsVisible() const;
  virtual bool IsEnabled() const;
  virtual bool IsMouseOver() const;
  virtual void SetStateTree(int32_t newState);
  virtual void SetStateTreeKeepHidden(int32_t newState);
  virtual void Hide();
  virtual void Show();
  virtual void SetEnabled(bool enabled);
  virtual void SetChildEnabled(int32_t childId, bool enabled, bool markDirty, bool sync);
  virtual void SetChildrenEnabled(bool enabled);
  virtual void SetChildrenEnabledKeepHidden(bool enabled);
  // The root deletes the control at the next UpdateTree.
  virtual void SetPendingDelete(bool pending);
  virtual bool IsPendingDelete() const;
  virtual void SetId(int32_t newId);
  virtual int32_t GetId() const;

  // In the owner's space; no repaint and no layout follow.
  virtual void SetBounds(const Rect& newBounds);
  virtual Rect GetBounds() const;
  virtual WindowContext* GetWindowContext();
  // The size stays: at the end of the numbers a control goes no further.
  virtual void MoveToPoint(const Point& point);
  virtual void MoveTo(int32_t x, int32_t y);
  virtual void MoveBy(int32_t dx, int32_t dy);
  virtual Rect GetGlobalBounds() const;
  virtual Rect GetLocalBounds() const;
  virtual void ClipToLocalBounds(Rect* rect) const;
  virtual void ClipToVisibleArea(Rect* rect) const;

  // Converted in place.
  virtual void LocalToGlobalRect(Rect* rect) const;
  virtual void LocalToGlobalPoint(Point* point) const;
  virtual void GlobalToLocalRect(Rect* rect) const;
  virtual void GlobalToLocalPoint(Point* point) const;
  virtual void OwnerToGlobalRect(Rect* rect) const;
  virtual void OwnerToGlobalPoint(Point* point) const;
  virtual void GlobalToOwnerRect(Rect* rect) const;
  virtual void GlobalToOwnerPoint(Point* point) const;
  virtual void LocalToOwnerRect(Rect* rect) const;
  virtual void LocalToOwnerPoint(Point* point) const;
  virtual void OwnerToLocalRect(Rect* rect) const;
  virtual void OwnerToLocalPoint(Point* point) const;

  // Buffers that all controls share; null where there is no root or none was made.
  virtual NativeImageBuffer* GetScreenBuffer();
  virtual ImageBuffer* GetScratchBuffer();

  // Paints at once. The first two take local rectangles and paint this control or its owner; the
  // others go through the root, so that all that overlaps is painted too.
  virtual void Redraw(const Rect& rect);
  virtual void RedrawInOwner(const Rect& rect);
  virtual void RedrawThroughRoot(const Rect& rect);
  virtual void RedrawSelf();
  virtual void RedrawIfParametersChanged();
  // Puts a part of the buffer at a global place of the window, or marks that place as invalid while
  // the window has no surface.
  virtual void BlitToWindow(NativeImageBuffer& buffer, int32_t srcX, int32_t srcY, int32_t width,
                            int32_t height, int32_t dstX, int32_t dstY, WindowContext* context);
  // Paints a local rectangle of this subtree; the local point `origin` lands on the buffer's top
  // left.
  virtual void DrawTree(const Rect& rect, const Point& origin, ImageBuffer& buffer);
  // Hooks: draw a local rectangle whose top left stands at `position` of the buffer.
  virtual void Paint(const Rect& rect, ImageBuffer& buffer, const Point& position);
  virtual void PaintOverlay(const Rect& rect, ImageBuffer& buffer, const Point& position);
  // Whether this control covers all of a local rectangle, so that nothing under it is painted.
  virtual bool IsOpaqueOver(const Rect& rect) const;
  virtual void SetOpacity(double newOpacity);
  virtual double GetOpacity() const;
  virtual void SetDirty(bool newDirty);
  virtual bool IsDirty() const;
  virtual void ClearDirtyTree();
  // The global area round all that wants repainting, which is then no longer marked.
  virtual Rect CollectDirtyRect();

  // The topmost visible and enabled control at a global point, or null.
  virtual ControlPane* HitTest(const Point& point);
  virtual bool ContainsLocalPoint(const Point& point) const;
  virtual void BeginTracking(WindowContext* context, const Point& point, const Modifiers& modifiers,
                             bool isDoubleClick, int32_t button);
  virtual void EndTracking();
  // Hooks; points are local.
  virtual void OnMouseDown(WindowContext* context, const Point& point);
  virtual void OnRightMouseDown(WindowContext* context, const Point& point);
  virtual void OnMouseDrag(WindowContext* context, const Point& point);
  virtual void OnMouseUp(WindowContext* context, const Point& point);
  // Of the press.
  virtual bool IsDoubleClick() const;
  virtual bool IsShiftDown() const;
  virtual bool IsAltDown() const;
  virtual bool IsCommandDown() const;
  virtual bool IsControlDown() const;
  virtual void SetTrackingMode(int32_t mode);
  virtual int32_t GetTrackingMode() const;
  virtual void DragMove(WindowContext* context, const Point& point);
  virtual void DragResize(WindowContext* context, const Point& point);
  virtual void OnDragMoved();

  virtual void SetContextMenu(PopupContextMenu* menu);  // takes it over
  virtual PopupContextMenu* GetContextMenu(WindowContext* context, const Point& point,
                                           bool* handled);
  virtual void OnIdle(WindowContext* context);
  virtual void IdleTree();
  // A cursor's id; negative: this control keeps the pointer until it answers otherwise.
  virtual int32_t GetCursorAt(WindowContext* context, const Point& point,
                              const Modifiers& modifiers);
  virtual void Pause(int32_t milliseconds);
  virtual void OnMouseEnter();
  virtual void OnMouseLeave();
  virtual void OnFocusGained();
  virtual void OnFocusLost();
  // Tell whether the key was taken.
  virtual bool OnKeyDown(WindowContext* context, int32_t key, const Modifiers& modifiers);
  virtual bool OnKeyUp(WindowContext* context, int32_t key, const Modifiers& modifiers);

  // Parameters are not owned.
  virtual void AddParameter(Parameter* parameter);
  virtual Parameter* GetParameter(int32_t index) const;
  // Takes the bound value in; tells whether it changed.
  virtual bool SyncFromParameters();
  virtual bool AnyParameterChanged() const;
  virtual void UpdateTree();

  // Pass a control's news to the owner, and so on up the tree until somebody takes them.
  virtual void NotifyPressed(ControlPane* source);
  virtual void NotifyReleased(ControlPane* source);
  virtual bool IsPopup() const;
  // Which edge or corner a local point would resize, 0 to 7; false for none.
  virtual bool FindResizeZone(const Point& point, int32_t inset, int32_t* zone) const;
  virtual void RaiseAndRedraw();

  virtual void LayoutChildren();
  virtual void ApplyAnchors();
  virtual LayoutAnchor* LeftAnchor();
  virtual LayoutAnchor* RightAnchor();
  virtual LayoutAnchor* TopAnchor();
  virtual LayoutAnchor* BottomAnchor();
  virtual void AnimateBounds(const Rect& target, double seconds);
  virtual void AnimateOpacity(double target, double seconds);
  virtual void StepAnimations();
  virtual void OnBoundsAnimationDone();
  virtual void OnOpacityAnimationDone();
  virtual Rect GetTargetBounds() const;
  virtual double GetTargetOpacity() const;
  virtual bool IsBoundsAnimating() const;
  virtual bool IsOpacityAnimating() const;

  // The text is not owned.
  virtual void SetHelpText(const char* text);
  virtual const char* GetHelpText() const;
  virtual void SetHelpIndex(int32_t index);
  virtual int32_t GetHelpIndex() const;
  virtual ControlPane* FindHelpControl(const Point& point);

  // The root; null with a line on the error stream where the chain ends in something else.
  TopControlPane* GetTopOwnerPtr();
  ControlPane* GetOwner() const { return owner; }
  int32_t GetChildCount() const { return static_cast<int32_t>(children.size()); }
  ControlPane* GetFirstChild() const;
  ControlPane* GetChildAt(int32_t index) const;
  int32_t GetChildIndex(const ControlPane* child) const;  // -1 if absent
  bool ContainsChild(const ControlPane* child) const;
  ControlPane* GetNextSibling() const;
  ControlPane* GetPreviousSibling() const;
  ControlPane* FindChildById(int32_t childId) const;
  ControlPane* FindDescendantById(int32_t descendantId) const;  // depth first
  bool IsDescendant(const ControlPane* control) const;

 protected:
  // For a destructor whose children still need to see the whole of their owner.
  void DeleteSubtree();

  ControlPane* owner = nullptr;  // AddChild alone sets it; null once the owner is gone
  Rect bounds;
  int32_t id = 0;
  int32_t state = kStateNormal;
  bool mouseOver = false;
  bool dirty = false;
  double opacity = 1.0;  // moved by a tween; painting doesn't apply it
  bool pendingDelete = false;
  LayoutAnchor leftAnchor, topAnchor, rightAnchor, bottomAnchor;
  std::list<ControlPane*> children;
  int32_t trackingMode = kTrackNone;
  Point downPoint;  // global
  Point downPointLocal;
  Modifiers downModifiers;
  bool doubleClick = false;
  int32_t mouseButton = kLeftButton;
  Rect downBounds;
  int32_t resizeZone = 0;
  int32_t minWidth = 100;
  int32_t minHeight = 100;
  int32_t maxWidth = 1000;
  int32_t maxHeight = 1000;
  std::vector<Parameter*> parameters;
  BoundsTween boundsTween;
  OpacityTween opacityTween;
  const char* helpText = nullptr;
  int32_t helpIndex = 0;
  PopupContextMenu* contextMenu = nullptr;

 private:
  friend class ChildWalk;
  friend class ControlWatch;

  // One control in a list of controls; it can leave without knowing whose list it is.
  struct ListLink {
    ControlPane* next = nullptr;
    ControlPane** pointerToThis = nullptr;
  };

  void EnterList(ControlPane** head);
  void LeaveList();
  void SetOwner(ControlPane* newOwner);
  bool CanAdopt(const ControlPane* child);
  void Link(ControlPane* child, std::list<ControlPane*>::iterator before);
  void Unlink(ControlPane* child);
  void EndWatchesAndWalks();
  ControlPane* NextInSubtree(const ControlPane* top) const;
  void RedrawTile(const Rect& tile);
  ControlPane* FindOccluder(const Rect& rect) const;
  void DrawChild(ControlPane& child, const Rect& rect, const Point& origin, ImageBuffer& buffer);
  bool IsHitAt(const Point& point) const;
  void StoreDraggedBounds(const Rect& dragged, bool layOut);
  bool TakeChangedParameters();
  void StepBoundsTween(double now);
  void StepOpacityTween(double now);
  static void DeleteUnlinked(ControlPane* control);
  void ReplaceContextMenu(PopupContextMenu* menu);

  ControlWatch contextMenuWatch;                   // somebody else may delete the menu
  bool isLinked = false;                           // is in its owner's children
  std::list<ControlPane*>::iterator placeInOwner;  // there, while linked
  ControlPane* firstWard = nullptr;                // all that name this one as their owner
  ListLink wardLink;
  ControlWatch* firstWatch = nullptr;
  ChildWalk* firstWalk = nullptr;
};
