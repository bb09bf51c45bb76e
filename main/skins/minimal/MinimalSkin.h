// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceKit.h"
#include "skins/minimal/MinimalLook.h"

namespace ambrelle {

/// The family of plain skins. What they share is laid out here; each plate treatment is a skin of its own below, with
/// the pieces that the faces are laid out from. Looks of one treatment differ by their data alone.
class MinimalSkin : public FaceRenderer {
public:
    explicit MinimalSkin(const MinimalLook& look);
    using FaceRenderer::draw;

    Box plate(Canvas& canvas, const FaceContext& face) const final;
    void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const final;
    bool showsSeconds() const final { return m_look.seconds; }
    double photoMat() const final { return m_look.photoMat; }
    void warning(Canvas& canvas, const Box& box) const override;
    void rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const override;

    void draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const final;

protected:
    const MinimalLook& look() const { return m_look; }

    virtual void panel(Canvas& canvas, const FaceContext& face) const = 0;
    /// The header without the gap below it.
    virtual void heading(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const = 0;
    /// The row's number, in figures of two digits; cuts its place off the line.
    void ordinal(Canvas& canvas, Box& line, qsizetype index) const;
    /// Temperature and picture over the description and the day's range.
    void currentWeather(Canvas& canvas, Box box, const WeatherReading& reading) const;

private:
    MinimalLook m_look;
};

std::shared_ptr<const FaceRenderer> makeFrostSkin(const MinimalLook& look);
std::shared_ptr<const FaceRenderer> makeHairlineSkin(const MinimalLook& look);
std::shared_ptr<const FaceRenderer> makeCardSkin(const MinimalLook& look);
std::shared_ptr<const FaceRenderer> makeCasingSkin(const MinimalLook& look);

} // namespace ambrelle
