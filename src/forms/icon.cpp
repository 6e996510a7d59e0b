#include "forms/icon.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <vector>

namespace tavrin::forms {

namespace {

constexpr double Box = 24;  // icons are drawn in a box of 24 by 24 units
constexpr double Pen = 2;

/// Draws in the units of the icon's box.
class Pencil {
  public:
    Pencil(Surface& surface, const Rect& area, Color color) : surface_(surface), color_(color) {
        const int side = std::min(area.width, area.height);
        unit_ = side / Box;
        left_ = area.left + (area.width - side) / 2.0;
        top_ = area.top + (area.height - side) / 2.0;
    }

    void Line(std::initializer_list<PointF> points, double pen = Pen) {
        surface_.DrawPolyline(Placed(points), pen * unit_, color_);
    }

    void Loop(std::initializer_list<PointF> points, double pen = Pen) {
        std::vector<PointF> closed = Placed(points);
        closed.push_back(closed.front());
        surface_.DrawPolyline(closed, pen * unit_, color_);
    }

    void Rectangle(double left, double top, double right, double bottom, double pen = Pen) {
        Loop({{left, top}, {right, top}, {right, bottom}, {left, bottom}}, pen);
    }

    void Fill(std::initializer_list<PointF> points) { surface_.FillPolygon(Placed(points), color_); }

    void Dot(double x, double y, double radius) { surface_.FillPolygon(Arc(x, y, radius), color_); }

    void Circle(double x, double y, double radius, double pen = Pen) {
        std::vector<PointF> outline = Arc(x, y, radius);
        outline.push_back(outline.front());
        surface_.DrawPolyline(outline, pen * unit_, color_);
    }

  private:
    std::vector<PointF> Placed(std::initializer_list<PointF> points) const {
        std::vector<PointF> placed;
        for (const PointF& point : points)
            placed.push_back({left_ + point.x * unit_, top_ + point.y * unit_});
        return placed;
    }

    std::vector<PointF> Arc(double x, double y, double radius) const {
        constexpr int Corners = 24;
        std::vector<PointF> outline;
        for (int i = 0; i < Corners; ++i) {
            const double angle = 2 * std::numbers::pi * i / Corners;
            outline.push_back({left_ + (x + radius * std::cos(angle)) * unit_,
                               top_ + (y + radius * std::sin(angle)) * unit_});
        }
        return outline;
    }

    Surface& surface_;
    Color color_;
    double unit_ = 0;
    double left_ = 0;
    double top_ = 0;
};

void NotePad(Pencil& pencil) {
    pencil.Rectangle(5, 4, 19, 21);
    for (const double x : {8.5, 12.0, 15.5})
        pencil.Line({{x, 2}, {x, 6}}, 1.6);
    for (const double y : {10.0, 13.5, 17.0})
        pencil.Line({{8, y}, {16, y}}, 1.6);
}

void AddressBook(Pencil& pencil) {
    pencil.Rectangle(5, 3, 20, 21);
    for (const double y : {7.0, 12.0, 17.0})
        pencil.Line({{3, y}, {6.5, y}}, 1.6);
    pencil.Dot(12.5, 9, 2.6);
    pencil.Fill({{8, 17}, {8.6, 14.4}, {10.4, 13}, {14.6, 13}, {16.4, 14.4}, {17, 17}});
}

void Calculator(Pencil& pencil) {
    pencil.Rectangle(5, 2.5, 19, 21.5);
    pencil.Fill({{8, 5.5}, {16, 5.5}, {16, 9}, {8, 9}});
    for (const double y : {12.5, 15.5, 18.5}) {
        for (const double x : {8.7, 12.0, 15.3})
            pencil.Dot(x, y, 1.1);
    }
}

void Exchange(Pencil& pencil) {
    pencil.Line({{4, 8}, {19, 8}});
    pencil.Line({{15, 4}, {19.5, 8}, {15, 12}});
    pencil.Line({{20, 16}, {5, 16}});
    pencil.Line({{9, 12}, {4.5, 16}, {9, 20}});
}

void Plus(Pencil& pencil, double x, double y, double arm) {
    pencil.Line({{x - arm, y}, {x + arm, y}});
    pencil.Line({{x, y - arm}, {x, y + arm}});
}

void Modify(Pencil& pencil) {
    pencil.Loop({{4, 20}, {5, 15.5}, {16, 4.5}, {19.5, 8}, {8.5, 19}});
    pencil.Line({{13.5, 7}, {17, 10.5}}, 1.6);
}

void AddCurrency(Pencil& pencil) {
    pencil.Circle(9.5, 14, 6.5);
    pencil.Line({{9.5, 10.5}, {9.5, 17.5}}, 1.6);
    Plus(pencil, 19, 6, 3.5);
}

void ChartIcon(Pencil& pencil) {
    pencil.Line({{4, 3}, {4, 20}, {21, 20}});
    pencil.Line({{7, 16}, {11, 10.5}, {14.5, 13}, {20, 5.5}});
}

void Exit(Pencil& pencil) {
    pencil.Line({{12, 4}, {5, 4}, {5, 20}, {12, 20}});
    pencil.Line({{10, 12}, {20, 12}});
    pencil.Line({{16, 8}, {20.3, 12}, {16, 16}});
}

void Draw(Pencil& pencil, Icon icon) {
    switch (icon) {
        case Icon::None:
            break;
        case Icon::NotePad:
            NotePad(pencil);
            break;
        case Icon::AddressBook:
            AddressBook(pencil);
            break;
        case Icon::Calculator:
            Calculator(pencil);
            break;
        case Icon::Exchange:
            Exchange(pencil);
            break;
        case Icon::RollUp:
            pencil.Line({{5, 15}, {12, 8}, {19, 15}}, 2.6);
            break;
        case Icon::Restore:
            pencil.Line({{5, 9}, {12, 16}, {19, 9}}, 2.6);
            break;
        case Icon::Close:
            pencil.Line({{6, 6}, {18, 18}}, 2.6);
            pencil.Line({{18, 6}, {6, 18}}, 2.6);
            break;
        case Icon::Add:
            Plus(pencil, 12, 12, 8);
            break;
        case Icon::Modify:
            Modify(pencil);
            break;
        case Icon::Remove:
            pencil.Line({{4, 12}, {20, 12}});
            break;
        case Icon::AddCurrency:
            AddCurrency(pencil);
            break;
        case Icon::Chart:
            ChartIcon(pencil);
            break;
        case Icon::Exit:
            Exit(pencil);
            break;
        case Icon::Accept:
            pencil.Line({{4, 13}, {9.5, 18.5}, {20, 6}}, 2.4);
            break;
        case Icon::Cancel:
            pencil.Line({{5.5, 5.5}, {18.5, 18.5}}, 2.4);
            pencil.Line({{18.5, 5.5}, {5.5, 18.5}}, 2.4);
            break;
        case Icon::Filter:
            pencil.Loop({{3.5, 5}, {20.5, 5}, {14, 12.5}, {14, 20}, {10, 17.5}, {10, 12.5}});
            break;
    }
}

}  // namespace

void DrawIcon(Surface& surface, Icon icon, const Rect& area, Color color) {
    Pencil pencil(surface, area, color);
    Draw(pencil, icon);
}

}  // namespace tavrin::forms
