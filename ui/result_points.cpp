#include "ui/result_points.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace kvelder {
namespace {

constexpr float kSamePlace = 1e-4F; // m

// The fine point nearest to x: the coarse grid's places are all on the fine
// grid, up to the rounding of the two divisions.
int fine_point(const Model& m, int span, float x)
{
    int best = 1;
    for (int j = 2; j <= m.nxtot_s(span); ++j) {
        if (std::abs(m.xl_s(span, j) - x) < std::abs(m.xl_s(span, best) - x)) {
            best = j;
        }
    }
    return best;
}

} // namespace

std::vector<DetailPoint> coarse_points(const Model& m)
{
    std::vector<DetailPoint> points;
    for (int i = 1; i <= m.nf; ++i) {
        std::vector<float> xs;
        for (int j = 1; j <= m.nxtot10_s(i); ++j) {
            xs.push_back(m.xl10_s(i, j));
        }
        std::sort(xs.begin(), xs.end());
        for (const float x : xs) {
            points.push_back({i, x, fine_point(m, i, x)});
        }
    }
    return points;
}

std::vector<DetailPoint> detail_points(const Model& m)
{
    std::vector<DetailPoint> points = coarse_points(m);
    const auto same_place = [](const DetailPoint& a, const DetailPoint& b) {
        return a.span == b.span && b.x - a.x <= kSamePlace;
    };
    points.erase(std::unique(points.begin(), points.end(), same_place), points.end());
    return points;
}

} // namespace kvelder
