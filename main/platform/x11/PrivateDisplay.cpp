// SPDX-License-Identifier: MIT

#include "platform/x11/PrivateDisplay.h"

#include <QRandomGenerator>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace ambrelle {

namespace {

constexpr int patience = 20'000; // milliseconds until it has started
constexpr const char* screen = "1440x900x24";

/// One entry of an authority file: lengths in two bytes, the larger one first.
void appendField(QByteArray& entry, const QByteArray& field)
{
    entry.append(static_cast<char>(field.size() >> 8));
    entry.append(static_cast<char>(field.size() & 0xff));
    entry.append(field);
}

/// What the server writes when it is there: its number, and a line's end.
QByteArray answerFrom(int descriptor)
{
    QByteArray answer;
    pollfd wait{descriptor, POLLIN, 0};
    while (!answer.endsWith('\n') && poll(&wait, 1, patience) > 0) {
        std::array<char, 16> bytes{};
        const ssize_t count = read(descriptor, bytes.data(), bytes.size());
        if (count <= 0)
            return {};
        answer.append(bytes.data(), count);
    }
    return answer.trimmed();
}

} // namespace

std::shared_ptr<PrivateDisplay> PrivateDisplay::start()
{
    std::shared_ptr<PrivateDisplay> display(new PrivateDisplay);
    if (!display->writeCookie() || !display->run())
        return nullptr;
    qputenv("XAUTHORITY", display->m_cookie.fileName().toLocal8Bit());
    qputenv("DISPLAY", display->m_name);
    qunsetenv("WAYLAND_DISPLAY");
    display->m_connection = xcb_connect(nullptr, nullptr);
    return xcb_connection_has_error(display->m_connection) == 0 ? display : nullptr;
}

PrivateDisplay::~PrivateDisplay()
{
    if (m_connection)
        xcb_disconnect(m_connection);
    if (m_server <= 0)
        return;
    kill(m_server, SIGTERM);
    waitpid(m_server, nullptr, 0);
}

bool PrivateDisplay::writeCookie()
{
    QByteArray secret(16, '\0');
    QRandomGenerator::system()->generate(
        reinterpret_cast<quint32*>(secret.data()), reinterpret_cast<quint32*>(secret.data() + secret.size()));
    QByteArray entry("\xff\xff", 2); // for every address
    for (const QByteArray& field : {QByteArray(), QByteArray(), QByteArray("MIT-MAGIC-COOKIE-1"), secret})
        appendField(entry, field);
    return m_cookie.open() && m_cookie.write(entry) == entry.size() && m_cookie.flush();
}

bool PrivateDisplay::run()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return false;
    std::string cookie = m_cookie.fileName().toStdString();
    // With its last connection it ends, so at the latest with this process, however that ends. Its number goes to the
    // third descriptor, which is the pipe's end there.
    std::array<std::string, 11> words{
        "Xvfb", "-displayfd", "3", "-screen", "0", screen, "-nolisten", "tcp", "-auth", cookie, "-terminate"};
    std::array<char*, 12> arguments{};
    for (std::size_t i = 0; i < words.size(); ++i)
        arguments[i] = words[i].data();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], 3);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    // What interrupts this process at a terminal is not for the server, and it hears whatever this process does not.
    posix_spawnattr_t manner;
    posix_spawnattr_init(&manner);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&manner, &none);
    posix_spawnattr_setpgroup(&manner, 0);
    posix_spawnattr_setflags(&manner, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK);
    const bool runs = posix_spawnp(&m_server, arguments[0], &actions, &manner, arguments.data(), environ) == 0;
    posix_spawnattr_destroy(&manner);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    m_name = runs ? answerFrom(ends[0]) : QByteArray();
    close(ends[0]);
    if (m_name.isEmpty())
        return false;
    m_name.prepend(':');
    return true;
}

} // namespace ambrelle
