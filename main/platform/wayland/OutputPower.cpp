// SPDX-License-Identifier: MIT

#include "platform/wayland/OutputPower.h"

#include "foundation/Wording.h"
#include "platform/wayland/connection/ToolkitWayland.h"

#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace ambrelle {

struct OutputPower::Output {
    OutputPower& owner;
    Handle<zwlr_output_power_v1> power;
    bool isOn = true; ///< as long as nothing else is told
};

OutputPower::OutputPower(const WaylandConnection* connection)
    : m_manager(connection ? connection->bind<zwlr_output_power_manager_v1>(zwlr_output_power_manager_v1_interface, 1)
                           : nullptr)
{
    if (!m_manager)
        return;
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &OutputPower::follow);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](QScreen* gone) {
        if (m_outputs.erase(gone) > 0)
            update();
    });
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
}

OutputPower::~OutputPower() = default;

QString OutputPower::whyNot() const
{
    return m_manager ? QString() : Wording::tr("This desktop does not tell when its screens are dark.");
}

void OutputPower::follow(QScreen* screen)
{
    static const zwlr_output_power_v1_listener listener{
        .mode =
            [](void* data, zwlr_output_power_v1*, uint32_t mode) {
                auto& output = *static_cast<Output*>(data);
                output.owner.setOn(output, mode != ZWLR_OUTPUT_POWER_V1_MODE_OFF);
            },
        .failed =
            [](void* data, zwlr_output_power_v1*) {
                auto& output = *static_cast<Output*>(data);
                output.owner.setOn(output, true);
            },
    };
    wl_output* const native = toolkitOutput(screen);
    if (!native)
        return; // a stand-in for none
    auto output = std::make_unique<Output>(Output{.owner = *this, .power = nullptr});
    output->power.reset(zwlr_output_power_manager_v1_get_output_power(m_manager.get(), native));
    zwlr_output_power_v1_add_listener(output->power.get(), &listener, output.get());
    m_outputs[screen] = std::move(output);
    update();
}

void OutputPower::setOn(Output& output, bool on)
{
    output.isOn = on;
    update();
}

void OutputPower::update()
{
    const bool visible =
        m_outputs.empty() || std::ranges::any_of(m_outputs, [](const auto& each) { return each.second->isOn; });
    if (std::exchange(m_visible, visible) != visible)
        Q_EMIT changed();
}

} // namespace ambrelle
