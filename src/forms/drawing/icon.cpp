#include "forms/drawing/icon.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <vector>

namespace tavrin::forms {

namespace {

constexpr double Box = 24;  // icons are drawn in a box of 24 by 24 units
constexpr double Pen = 2;

/// Draws in the units of the icon's box. Upright and level strokes are laid on whole device pixels, so that
/// they are sharp in small sizes.
class Pencil {
  public:
    Pencil(Surface& surface, const Rect& area, Color color)
        : surface_(surface), color_(color), pixel_(surface.PixelSize()) {
        const double side = std::floor(std::min(area.width, area.height) / pixel_) * pixel_;
        unit_ = side / Box;
        left_ = Whole(area.left + (area.width - side) / 2.0);
        top_ = Whole(area.top + (area.height - side) / 2.0);
    }

    void Line(std::initializer_list<PointF> points, double pen = Pen) { Stroke(points, pen); }

    void Loop(std::initializer_list<PointF> points, double pen = Pen) {
        std::vector<PointF> closed(points);
        closed.push_back(closed.front());
        Stroke(closed, pen);
    }

    void Rectangle(double left, double top, double right, double bottom, double pen = Pen) {
        Loop({{left, top}, {right, top}, {right, bottom}, {left, bottom}}, pen);
    }

    /// A filled rectangle of whole pixels.
    void Block(double left, double top, double right, double bottom) {
        const PointF from{Whole(left_ + left * unit_), Whole(top_ + top * unit_)};
        const PointF to{std::max(from.x + pixel_, Whole(left_ + right * unit_)),
                        std::max(from.y + pixel_, Whole(top_ + bottom * unit_))};
        const std::array<PointF, 4> corners{{from, {to.x, from.y}, to, {from.x, to.y}}};
        surface_.FillPolygon(corners, color_);
    }

    void Fill(std::initializer_list<PointF> points) {
        std::vector<PointF> outline;
        for (const PointF& point : points)
            outline.push_back(Placed(point));
        surface_.FillPolygon(outline, color_);
    }

    void Dot(double x, double y, double radius) { surface_.FillPolygon(Arc(x, y, radius), color_); }

    void Circle(double x, double y, double radius, double pen = Pen) {
        std::vector<PointF> outline = Arc(x, y, radius);
        outline.push_back(outline.front());
        surface_.DrawPolyline(outline, std::max(pixel_, pen * unit_), color_);
    }

  private:
    double Whole(double twips) const { return std::round(twips / pixel_) * pixel_; }

    PointF Placed(PointF point) const { return {left_ + point.x * unit_, top_ + point.y * unit_}; }

    /// Thin strokes are no paler than broad ones.
    void Stroke(const std::vector<PointF>& points, double pen) {
        double width = std::max(pixel_, pen * unit_);
        const bool sharp = IsSquare(points);
        if (sharp) width = Whole(width);
        std::vector<PointF> placed;
        placed.reserve(points.size());
        for (const PointF& point : points)
            placed.push_back(sharp ? OnPixels(Placed(point), width) : Placed(point));
        surface_.DrawPolyline(placed, width, color_);
    }

    /// Whether all strokes are upright or level.
    static bool IsSquare(const std::vector<PointF>& points) {
        const auto slants = [](const PointF& from, const PointF& to) {
            return from.x != to.x && from.y != to.y;
        };
        return std::ranges::adjacent_find(points, slants) == points.end();
    }

    /// Moves a stroke's middle so that its sides fall on the edges of pixels.
    PointF OnPixels(PointF point, double width) const {
        const double half = width / 2;
        return {Whole(point.x - half) + half, Whole(point.y - half) + half};
    }

    std::vector<PointF> Arc(double x, double y, double radius) const {
        constexpr int Corners = 32;
        std::vector<PointF> outline;
        for (int i = 0; i < Corners; ++i) {
            const double angle = 2 * std::numbers::pi * i / Corners;
            outline.push_back(Placed({x + radius * std::cos(angle), y + radius * std::sin(angle)}));
        }
        return outline;
    }

    Surface& surface_;
    Color color_;
    double pixel_;
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
    pencil.Rectangle(5, 3, 19, 21);
    pencil.Block(8, 6, 16, 9);
    for (const double y : {11.0, 14.0, 17.0}) {
        for (const double x : {8.0, 11.0, 14.0})
            pencil.Block(x, y, x + 1.5, y + 1.5);
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

/// A waste bin.
void Remove(Pencil& pencil) {
    pencil.Line({{4, 6}, {20, 6}});
    pencil.Line({{9, 6}, {9, 3}, {15, 3}, {15, 6}});
    pencil.Line({{6, 7}, {7, 21}, {17, 21}, {18, 7}});
    for (const double x : {10.0, 14.0})
        pencil.Line({{x, 10}, {x, 17}}, 1.6);
}

/// A coin, and a plus sign beside it.
void AddCurrency(Pencil& pencil) {
    pencil.Circle(8.5, 15, 7.5);
    pencil.Line({{8.5, 11}, {8.5, 19}});
    Plus(pencil, 18, 5.5, 4);
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

/// A sheet with a folded corner, and a plus sign on it.
void NewNote(Pencil& pencil) {
    pencil.Loop({{5, 3}, {13.5, 3}, {19, 8.5}, {19, 21}, {5, 21}});
    pencil.Line({{13, 3.5}, {13, 9}, {18.5, 9}}, 1.6);
    Plus(pencil, 12, 15, 3.5);
}

/// A diskette.
void Save(Pencil& pencil) {
    pencil.Loop({{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}});
    pencil.Block(8, 4, 15, 9);
    pencil.Rectangle(8, 13, 16, 20, 1.6);
}

/// A large and a small letter.
void Letters(Pencil& pencil) {
    pencil.Line({{1.5, 20}, {7.5, 4}, {13.5, 20}});
    pencil.Line({{4, 14.5}, {11, 14.5}});
    pencil.Circle(18.2, 15.8, 3.6);
    pencil.Line({{22, 11.5}, {22, 20.5}});
}

/// A letter over a broad line.
void TextColor(Pencil& pencil) {
    pencil.Line({{6.5, 15}, {12, 3}, {17.5, 15}});
    pencil.Line({{8.5, 11}, {15.5, 11}});
    pencil.Block(4, 18, 20, 21.5);
}

void Bold(Pencil& pencil) {
    constexpr double Broad = 3.2;
    pencil.Line({{7.5, 4}, {7.5, 20}}, Broad);
    pencil.Line({{7.5, 4.5}, {13, 4.5}, {15.5, 6}, {15.5, 9.5}, {13, 11.5}, {7.5, 11.5}}, Broad);
    pencil.Line({{13, 11.5}, {16.5, 13.5}, {16.5, 17.5}, {13.5, 19.5}, {7.5, 19.5}}, Broad);
}

void Italic(Pencil& pencil) {
    pencil.Line({{10, 4}, {18, 4}});
    pencil.Line({{14.5, 4}, {9.5, 20}});
    pencil.Line({{6, 20}, {14, 20}});
}

void Underline(Pencil& pencil) {
    pencil.Line({{7, 3}, {7, 12}, {9, 15.5}, {12, 16.5}, {15, 15.5}, {17, 12}, {17, 3}});
    pencil.Line({{5, 21}, {19, 21}});
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
            Remove(pencil);
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
        case Icon::NewNote:
            NewNote(pencil);
            break;
        case Icon::Save:
            Save(pencil);
            break;
        case Icon::Letters:
            Letters(pencil);
            break;
        case Icon::TextColor:
            TextColor(pencil);
            break;
        case Icon::Bold:
            Bold(pencil);
            break;
        case Icon::Italic:
            Italic(pencil);
            break;
        case Icon::Underline:
            Underline(pencil);
            break;
    }
}

}  // namespace

void DrawIcon(Surface& surface, Icon icon, const Rect& area, Color color) {
    if (area.IsEmpty()) return;
    Pencil pencil(surface, area, color);
    Draw(pencil, icon);
}

}  // namespace tavrin::forms
