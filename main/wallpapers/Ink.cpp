// SPDX-License-Identifier: MIT

#include "wallpapers/Ink.h"

#include <QtGlobal>

#include <cmath>

namespace ambrelle {

namespace {

constexpr float half = 0.5F; // of a step: cutting off then rounds; the library's way takes longer than all the rest
constexpr int steps = 1024; // a step of white on black is a quarter of what eight bits can tell

RGBA colourAt(const GradientStops& stops, double t)
{
    const auto next = std::ranges::find_if(stops, [t](const GradientStop& stop) { return stop.location > t; });
    if (next == stops.begin())
        return next->colour;
    const GradientStop& previous = *std::prev(next);
    if (next == stops.end())
        return previous.colour;
    return previous.colour.mixed(next->colour, (t - previous.location) / (next->location - previous.location));
}

std::vector<Pixel> ramp(const GradientStops& stops)
{
    if (stops.empty())
        qFatal("Ink: a gradient needs a colour");
    std::vector<Pixel> colours;
    colours.reserve(steps + 1);
    for (int step = 0; step <= steps; ++step)
        colours.push_back(pixel(colourAt(stops, static_cast<double>(step) / steps)));
    return colours;
}

} // namespace

GradientStops eased(const GradientStops& stops)
{
    constexpr int perSlope = 16;
    GradientStops result{stops.front()};
    for (std::size_t i = 1; i < stops.size(); ++i) {
        for (int step = 1; step <= perSlope; ++step) {
            const double t = static_cast<double>(step) / perSlope;
            result.push_back({mix(stops[i - 1].location, stops[i].location, t),
                stops[i - 1].colour.mixed(stops[i].colour, smoothstep(0, 1, t))});
        }
    }
    return result;
}

Ink::Ink(const RGBA& colour)
    : m_ramp{pixel(colour)}
{
}

Ink Ink::linear(QPointF from, QPointF to, const GradientStops& stops, Ends ends)
{
    const QPointF way = to - from;
    const double squared = QPointF::dotProduct(way, way);
    if (!(squared > 0) || !std::isfinite(squared))
        qFatal("Ink: a gradient needs two different points");
    Ink ink;
    ink.m_form = Form::linear;
    ink.m_ends = ends;
    ink.m_ramp = ramp(stops);
    ink.m_origin = from;
    ink.m_direction = way / squared;
    return ink;
}

Ink Ink::radial(QPointF centre, double radius, const GradientStops& stops, Ends ends)
{
    if (!(radius > 0) || !std::isfinite(radius))
        qFatal("Ink: %g is no radius", radius);
    Ink ink;
    ink.m_form = Form::radial;
    ink.m_ends = ends;
    ink.m_ramp = ramp(stops);
    ink.m_origin = centre;
    ink.m_radius = radius;
    return ink;
}

const Pixel& Ink::at(double t) const
{
    return m_ramp[static_cast<std::size_t>(std::clamp(t, 0.0, 1.0) * steps + half)];
}

std::pair<int, int> Ink::columns(double y, int width) const
{
    if (m_form != Form::radial || m_ends == Ends::extended)
        return {0, width};
    const double distance = y - m_origin.y();
    const double squared = m_radius * m_radius - distance * distance;
    if (squared <= 0)
        return {0, 0};
    const double half = std::sqrt(squared);
    const auto column = [width](double x) { return static_cast<int>(std::clamp(x, 0.0, static_cast<double>(width))); };
    return {column(std::ceil(m_origin.x() - half - 0.5)), column(std::floor(m_origin.x() + half + 0.5))};
}

void Ink::fill(std::span<Pixel> row, int first, double y) const
{
    switch (m_form) {
    case Form::flat: std::ranges::fill(row, m_ramp.front()); return;
    case Form::linear: {
        const double start = (y - m_origin.y()) * m_direction.y() - m_origin.x() * m_direction.x();
        if (m_direction.x() == 0 && m_ends == Ends::extended) {
            std::ranges::fill(row, at(start));
            return;
        }
        for (std::size_t i = 0; i < row.size(); ++i) {
            const double t = start + (first + static_cast<double>(i) + 0.5) * m_direction.x();
            row[i] = m_ends == Ends::open && (t < 0 || t > 1) ? Pixel{} : at(t);
        }
        return;
    }
    case Form::radial: {
        const auto across = static_cast<float>(y - m_origin.y());
        const auto along = static_cast<float>(m_origin.x());
        const auto scale = static_cast<float>(steps / m_radius);
        const float squared = across * across;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const float x = static_cast<float>(first + static_cast<int>(i)) + 0.5F - along;
            const float step = std::min(std::sqrt(x * x + squared) * scale, static_cast<float>(steps));
            row[i] = m_ramp[static_cast<std::size_t>(static_cast<int>(step + half))];
        }
        return;
    }
    }
}

} // namespace ambrelle
