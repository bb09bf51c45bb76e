// SPDX-License-Identifier: MIT

#include "platform/wayland/connection/Activation.h"

#include "platform/wayland/connection/ToolkitWayland.h"

#include <QEvent>
#include <QTimer>
#include <QWindow>

#include <chrono>
#include <utility>

namespace ambrelle {

namespace {

// Nobody notices it, and a compositor that answers at all does so in a fraction of it.
constexpr std::chrono::milliseconds patience{150};

// From the first paint of a window until the compositor has taken it in.
constexpr std::chrono::milliseconds appearing{50};

} // namespace

struct Activation::Question {
    explicit Question(Activation& asker)
        : owner(asker)
    {
    }

    Activation& owner;
    Handle<xdg_activation_token_v1> token;
    Done done;
    QTimer end;
};

Activation::Activation(const WaylandConnection& connection)
    : m_activation(connection.bind<xdg_activation_v1>(xdg_activation_v1_interface, 1))
    , m_input(connection)
{
}

Activation::~Activation() = default;

void Activation::activate(QWindow& window, const QString& token)
{
    if (!m_activation)
        return;
    if (window.isExposed())
        return send(window, token);
    m_waiting[&window] = token;
    window.installEventFilter(this);
    connect(&window, &QObject::destroyed, this, [this, gone = &window] { m_waiting.erase(gone); });
}

void Activation::send(QWindow& window, const QString& token) const
{
    if (wl_surface* const surface = toolkitSurface(&window))
        xdg_activation_v1_activate(m_activation.get(), token.toUtf8().constData(), surface);
}

bool Activation::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Expose)
        return false;
    watched->removeEventFilter(this);
    auto* const window = static_cast<QWindow*>(watched);
    QTimer::singleShot(appearing, window, [this, window] {
        if (const auto waiting = m_waiting.extract(window))
            send(*window, waiting.mapped());
    });
    return false;
}

void Activation::request(Done done)
{
    if (!m_activation)
        return done({});
    static const xdg_activation_token_v1_listener listener{
        .done =
            [](void* data, xdg_activation_token_v1*, const char* token) {
                auto* question = static_cast<Question*>(data);
                question->owner.finish(question, QString::fromUtf8(token));
            },
    };
    auto question = std::make_unique<Question>(*this);
    question->token.reset(xdg_activation_v1_get_activation_token(m_activation.get()));
    question->done = std::move(done);
    xdg_activation_token_v1_add_listener(question->token.get(), &listener, question.get());
    if (m_input.seat() && m_input.last() != 0)
        xdg_activation_token_v1_set_serial(question->token.get(), m_input.last(), m_input.seat());
    xdg_activation_token_v1_commit(question->token.get());
    question->end.setSingleShot(true);
    connect(&question->end, &QTimer::timeout, this, [this, asked = question.get()] { finish(asked, {}); });
    question->end.start(patience);
    Question* const asked = question.get();
    m_questions.emplace(asked, std::move(question));
}

void Activation::finish(Question* question, const QString& token)
{
    if (const auto found = m_questions.extract(question))
        found.mapped()->done(token);
}

} // namespace ambrelle
