// Where each control lands: Create takes the rectangle as exclusive, and
// MoveWindow(tagRECT*) as inclusive for every control but the label; the
// pages' layout rests on that difference.

#include "sf/SFButton.h"
#include "sf/SFCheckBox.h"
#include "sf/SFComboBox.h"
#include "sf/SFControlTypes.h"
#include "sf/SFEditCtrl.h"
#include "sf/SFFactory.h"
#include "sf/SFNumSpiner.h"
#include "sf/SFPictureCtrl.h"
#include "sf/SFRadioBox.h"
#include "sf/SFStatic.h"
#include "sf/SFVideoWindow.h"
#include "sf/SFVideoWindowFactory.h"
#include "sf/SFView.h"

#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace {

const tagRECT kRect{ 10, 10, 110, 40 };
constexpr unsigned int kId = 7;

// One control behind its facade, seen as a widget.
struct Placed {
    QWidget* widget;
    std::function<void(tagRECT*)> moveRect;
    std::function<void(int, int, int, int)> moveXYWH;
    std::function<void(int)> show;
    std::function<void()> destroy;
};

template <class Facade>
Placed Adopt(Facade* control)
{
    return Placed{ dynamic_cast<QWidget*>(control),
                   [control](tagRECT* r) { control->MoveWindow(r); },
                   [control](int x, int y, int w, int h) { control->MoveWindow(x, y, w, h); },
                   [control](int show) { control->ShowWindow(show); },
                   [control] { SFDestroyControl(control); } };
}

struct PlacementCase {
    const char* kind;
    std::function<Placed(void* parent)> make;
    QSize created;
    QSize movedByRect;
};

std::ostream& operator<<(std::ostream& os, const PlacementCase& c)
{
    return os << c.kind;
}

template <class Facade>
Placed CreateText(Facade* control, void* parent)
{
    control->Create(L"", SF_WS_VISIBLE, kRect, parent, kId);
    return Adopt(control);
}

const QSize kExclusive(100, 30);
const QSize kInclusive(101, 31);

const PlacementCase kCases[] = {
    { "button", [](void* p) { return CreateText(SFCreateButton(nullptr), p); }, kExclusive,
      kInclusive },
    { "check", [](void* p) { return CreateText(SFCreateCheckBox(nullptr), p); }, kExclusive,
      kInclusive },
    { "radio", [](void* p) { return CreateText(SFCreateRadioBox(nullptr), p); }, kExclusive,
      kInclusive },
    { "picture", [](void* p) { return CreateText(SFCreatePictureCtrl(nullptr), p); }, kExclusive,
      kInclusive },
    // The label alone keeps the exclusive reading when it moves.
    { "label", [](void* p) { return CreateText(SFCreateStatic(nullptr), p); }, kExclusive,
      kExclusive },
    { "edit",
      [](void* p) {
          CSFEditCtrl* edit = SFCreateEditCtrl(nullptr);
          edit->Create(SF_WS_VISIBLE, kRect, p, kId, false);
          return Adopt(edit);
      },
      kExclusive, kInclusive },
    { "combo",
      [](void* p) {
          CSFComboBox* combo = SFCreateComboBox(nullptr);
          combo->Create(SF_WS_VISIBLE, kRect, p, kId);
          return Adopt(combo);
      },
      kExclusive, kInclusive },
    { "spinner",
      [](void* p) {
          CSFNumSpiner* spinner = SFCreateNumSpiner(nullptr);
          spinner->Create(L"", kRect, p, kId);
          return Adopt(spinner);
      },
      kExclusive, kInclusive },
    // A view takes the rectangle as it stands at Create too.
    { "view",
      [](void* p) {
          CSFView* view = SFCreateView(nullptr);
          view->Create(L"", L"", SF_WS_VISIBLE, kRect, p, kId);
          return Adopt(view);
      },
      kInclusive, kInclusive },
    { "videowindow",
      [](void* p) {
          CSFVideoWindow* video = SFCreateVideoWindow(nullptr, nullptr, 1, 1);
          video->Create(L"", kRect, p, kId);
          return Adopt(video);
      },
      kExclusive, kInclusive },
};

class ControlPlacement : public testing::TestWithParam<PlacementCase> {
protected:
    QWidget m_parent;
};

TEST_P(ControlPlacement, FollowsTheRectangleConventions)
{
    const PlacementCase& c = GetParam();
    m_parent.resize(300, 200);
    const Placed placed = c.make(&m_parent);
    QWidget* w = placed.widget;
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->parentWidget(), &m_parent);
    EXPECT_EQ(w->objectName().toStdString(), std::string(c.kind) + "_7");
    EXPECT_EQ(w->pos(), QPoint(10, 10));
    EXPECT_EQ(w->size(), c.created);

    tagRECT again = kRect;
    placed.moveRect(&again);
    EXPECT_EQ(w->pos(), QPoint(10, 10));
    EXPECT_EQ(w->size(), c.movedByRect);
    placed.moveRect(nullptr);
    EXPECT_EQ(w->size(), c.movedByRect);

    placed.moveXYWH(20, 5, 60, 24);
    EXPECT_EQ(w->geometry(), QRect(20, 5, 60, 24));

    placed.show(0);
    EXPECT_FALSE(w->isVisibleTo(&m_parent));
    placed.show(1);
    EXPECT_TRUE(w->isVisibleTo(&m_parent));
    placed.destroy();
}

INSTANTIATE_TEST_SUITE_P(Controls, ControlPlacement, testing::ValuesIn(kCases));

} // namespace
