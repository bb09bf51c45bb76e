// SPDX-License-Identifier: MIT

#include "platform/headless/HeadlessWindowHost.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

class HeadlessPanel final : public PanelWindow {
public:
    void setFrame(const QRectF& frame) override { m_frame = frame; }
    QRectF frame() const override { return m_frame; }
    void show() override { }
    void hide() override { }
    void setLevel(WindowLevel) override { }
    void setOpacity(double) override { }
    void setClickThrough(bool) override { }
    void setInputArea(const QRectF&) override { }
    void setOutline(const QList<RoundedArea>&) override { }
    void update(const QRectF&) override { }
    double pixelRatio() const override { return 1; }
    void namesChanged() override { }

private:
    QRectF m_frame;
};

class HeadlessBackdrop final : public BackdropWindow {
public:
    void setFrame(const QRectF& screen) override { m_frame = screen; }
    QRectF frame() const override { return m_frame; }
    void show() override { }
    void takeFocus() override { }
    void update() override { }

private:
    QRectF m_frame;
};

class HeadlessScene final : public SceneWindow {
public:
    void setFrame(const QRectF& frame) override { m_frame = frame; }
    QRectF frame() const override { return m_frame; }
    void show() override { }
    void update(const QRectF&) override { }
    void setOutline(const QList<QRectF>&) override { }

private:
    QRectF m_frame;
};

} // namespace

QList<ScreenInfo> HeadlessWindowHost::screens() const
{
    const QRectF frame(0, 0, 1440, 900);
    return {ScreenInfo{u"headless"_s, u"headless"_s, frame, frame, 1, 0}};
}

std::unique_ptr<PanelWindow> HeadlessWindowHost::makePanel(PanelDelegate&)
{
    return std::make_unique<HeadlessPanel>();
}

std::unique_ptr<BackdropWindow> HeadlessWindowHost::makeBackdrop(BackdropDelegate&)
{
    return std::make_unique<HeadlessBackdrop>();
}

std::unique_ptr<SceneWindow> HeadlessWindowHost::makeScene(OrnamentDelegate&)
{
    return std::make_unique<HeadlessScene>();
}

} // namespace ambrelle
