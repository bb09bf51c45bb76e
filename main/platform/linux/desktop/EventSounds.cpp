// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/EventSounds.h"

#include <QLibrary>
#include <QList>

#include <atomic>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int interfaceVersion = 0; // of the library's binary interface

struct Context;
struct Properties;

/// What is used of libcanberra. The program does not link it, so that it costs nothing until there is a sound.
struct Canberra {
    using Finished = void (*)(Context*, quint32 id, int error, void* data);

    int (*createContext)(Context**) = nullptr;
    int (*createProperties)(Properties**) = nullptr;
    int (*destroyProperties)(Properties*) = nullptr;
    int (*setProperty)(Properties*, const char* key, const char* value) = nullptr;
    int (*play)(Context*, quint32 id, Properties*, Finished, void* data) = nullptr;

    static std::optional<Canberra> load(const QString& name);
};

template <typename Function> bool resolve(QLibrary& library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(library.resolve(name));
    return function != nullptr;
}

std::optional<Canberra> Canberra::load(const QString& name)
{
    QLibrary library(name, interfaceVersion);
    Canberra canberra;
    const bool complete = library.load() && resolve(library, "ca_context_create", canberra.createContext)
        && resolve(library, "ca_proplist_create", canberra.createProperties)
        && resolve(library, "ca_proplist_destroy", canberra.destroyProperties)
        && resolve(library, "ca_proplist_sets", canberra.setProperty)
        && resolve(library, "ca_context_play_full", canberra.play);
    return complete ? std::optional(canberra) : std::nullopt;
}

} // namespace

/// What the handing-over thread works with. Neither it nor the context is ever destroyed: the library's own threads may
/// still run through its code when a sound is over, and destroying the context would unload that code.
struct EventSounds::State {
    std::atomic<bool> busy = false;
    std::atomic<int> played = 0;
    std::optional<Canberra> canberra; // these two belong to the thread
    Context* context = nullptr;

    static State* make()
    {
        static auto* const kept = new QList<std::shared_ptr<State>>;
        kept->append(std::make_shared<State>());
        return kept->last().get();
    }

    static void finished(Context*, quint32, int error, void* data)
    {
        if (error == 0)
            ++static_cast<State*>(data)->played;
    }

    bool open(const QString& library)
    {
        if (!canberra)
            canberra = Canberra::load(library);
        return canberra && (context || canberra->createContext(&context) == 0);
    }

    void handOver(const Player& player, const QString& event)
    {
        Properties* properties = nullptr;
        if (canberra->createProperties(&properties) != 0)
            return;
        const std::pair<const char*, QString> values[] = {{"event.id", event}, {"media.role", u"event"_s},
            {"application.name", player.name}, {"application.id", player.id}, {"application.icon_name", player.id}};
        for (const auto& [key, value] : values)
            canberra->setProperty(properties, key, value.toUtf8().constData());
        canberra->play(context, 0, properties, &State::finished, this);
        canberra->destroyProperties(properties);
    }
};

EventSounds::EventSounds(Player player, QString library)
    : m_player(std::move(player))
    , m_library(std::move(library))
{
}

void EventSounds::play(const QString& event)
{
    if (!m_state)
        m_state = State::make();
    if (m_state->busy.exchange(true))
        return;
    std::thread([state = m_state, player = m_player, library = m_library, event] {
        if (state->open(library))
            state->handOver(player, event);
        state->busy = false;
    }).detach();
}

bool EventSounds::isBusy() const
{
    return m_state && m_state->busy;
}

int EventSounds::played() const
{
    return m_state ? m_state->played.load() : 0;
}

} // namespace ambrelle
