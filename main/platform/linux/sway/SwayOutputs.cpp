// SPDX-License-Identifier: MIT

#include "platform/linux/sway/SwayOutputs.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds outputSettling{150};
constexpr std::chrono::milliseconds barSettling{1000}; // it is a program that has to do something first
constexpr std::chrono::seconds freshness{1};

} // namespace

SwayOutputs::SwayOutputs(const QString& path)
    : m_socket(path, {u"workspace"_s, u"output"_s, u"barconfig_update"_s})
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &SwayOutputs::ask);
    connect(&m_socket, &SwaySocket::opened, this, &SwayOutputs::ask);
    connect(&m_socket, &SwaySocket::happened, this, [this](const QString& kind, const QString& change) {
        if (kind == "barconfig_update"_L1)
            m_soon.start(barSettling);
        else if (kind == "output"_L1 || change == "reload"_L1 || change == "init"_L1 || change == "move"_L1)
            refresh();
    });
    connect(&m_socket, &SwaySocket::ended, this, [this] {
        if (std::exchange(m_outputs, std::nullopt))
            Q_EMIT changed();
    });
    if (!path.isEmpty())
        m_socket.open();
}

std::optional<SwayOutput> SwayOutputs::output(const QString& name)
{
    if (m_fresh.hasExpired())
        refresh();
    const QList<SwayOutput> outputs = m_outputs.value_or(QList<SwayOutput>());
    const auto found = std::ranges::find(outputs, name, &SwayOutput::name);
    return found == outputs.end() ? std::nullopt : std::optional(*found);
}

bool SwayOutputs::waitForAnswer(std::chrono::milliseconds most)
{
    const QDeadlineTimer deadline(most);
    while (!m_outputs && !deadline.hasExpired() && m_socket.wait(deadline)) { }
    return m_outputs.has_value();
}

void SwayOutputs::refresh()
{
    if (!m_soon.isActive())
        m_soon.start(outputSettling);
}

void SwayOutputs::ask()
{
    m_fresh.setRemainingTime(freshness);
    m_socket.ask(SwaySocket::Question::outputs, [this](const QByteArray& outputs) { m_told = outputs; });
    m_socket.ask(SwaySocket::Question::workspaces, [this](const QByteArray& workspaces) {
        const auto outputs = swayOutputs(std::exchange(m_told, {}), workspaces);
        if (outputs && std::exchange(m_outputs, outputs) != outputs)
            Q_EMIT changed();
    });
}

} // namespace ambrelle
