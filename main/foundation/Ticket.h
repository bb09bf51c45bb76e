// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>

namespace ambrelle {

/// Holds a subscription or a timer: while the ticket lives the work goes on, when it dies the work stops.
class Ticket {
public:
    Ticket() = default;
    explicit Ticket(std::function<void()> cancel)
        : m_cancel(std::move(cancel))
    {
    }
    Ticket(Ticket&& other) noexcept
        : m_cancel(std::exchange(other.m_cancel, nullptr))
    {
    }
    Ticket& operator=(Ticket&& other) noexcept
    {
        if (this != &other) {
            reset();
            m_cancel = std::exchange(other.m_cancel, nullptr);
        }
        return *this;
    }
    Ticket(const Ticket&) = delete;
    Ticket& operator=(const Ticket&) = delete;
    ~Ticket() { reset(); }

    explicit operator bool() const { return m_cancel != nullptr; }
    void reset()
    {
        if (auto cancel = std::exchange(m_cancel, nullptr))
            cancel();
    }

private:
    std::function<void()> m_cancel;
};

} // namespace ambrelle
