// SPDX-License-Identifier: MIT

#pragma once

#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace ambrelle {

/// When an answer may come: as a rule after the call that asks for it.
enum class Answered { later, anyTime };

/// Calls `ask` with what takes the answer, and waits for it. Without one the test fails and goes on with a plain value.
/// `meanwhile` is called again and again.
template <typename Value, typename Ask>
Value answerOf(
    const Ask& ask, Answered when = Answered::later, const std::function<void()>& meanwhile = [] {})
{
    std::optional<Value> answer;
    ask([&answer](const Value& value) { answer.emplace(value); });
    EXPECT_TRUE(when == Answered::anyTime || !answer) << "answered before the call was over";
    EXPECT_TRUE(waitUntil([&] {
        meanwhile();
        return answer.has_value();
    })) << "no answer";
    return answer.value_or(Value());
}

} // namespace ambrelle
