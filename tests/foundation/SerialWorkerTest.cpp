// SPDX-License-Identifier: MIT

#include "foundation/SerialWorker.h"

#include "support/WaitUntil.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QThread>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;

TEST(SerialWorkerTest, WorksInOrderOnAnotherThreadAndAnswersOnThisOne)
{
    QObject owner;
    SerialWorker worker(owner);
    const QThread* const here = QThread::currentThread();
    QList<int> answers;
    bool isElsewhere = false;
    for (const int number : {1, 2, 3}) {
        const auto work = [number, here, &isElsewhere] {
            isElsewhere = QThread::currentThread() != here;
            return number;
        };
        worker.run(work, [&](int answer) {
            EXPECT_EQ(QThread::currentThread(), here);
            answers.append(answer);
        });
    }
    EXPECT_TRUE(answers.isEmpty());
    EXPECT_TRUE(waitUntil([&] { return answers.size() == 3; }));
    EXPECT_EQ(answers, (QList<int>{1, 2, 3}));
    EXPECT_TRUE(isElsewhere);
}

/// What the pieces of a test share, which may outlive it.
struct Gate {
    QSemaphore begun, open, through;
};

TEST(SerialWorkerTest, WorkThatHangsIsLeftBehind)
{
    const auto gate = std::make_shared<Gate>();
    QElapsedTimer timer;
    bool isAnswered = false;
    {
        QObject owner;
        SerialWorker worker(owner, 100ms);
        const auto hang = [gate] {
            gate->begun.release();
            gate->open.acquire();
            gate->through.release();
            return 1;
        };
        worker.run(hang, [&isAnswered](int) { isAnswered = true; });
        worker.run(hang, [&isAnswered](int) { isAnswered = true; });
        ASSERT_TRUE(gate->begun.tryAcquire(1, 60'000));
        timer.start();
    }
    EXPECT_GE(timer.elapsed(), 90) << "what may end soon is waited for";
    EXPECT_LT(timer.elapsed(), 1500);
    gate->open.release(2);
    ASSERT_TRUE(gate->through.tryAcquire(1, 60'000)) << "it goes on when the disk answers";
    // Its answer has nobody to go to, and what had not begun never does.
    QCoreApplication::processEvents();
    EXPECT_FALSE(isAnswered);
    EXPECT_FALSE(gate->begun.tryAcquire(1, 200));
}

TEST(SerialWorkerTest, WhatHangsTogetherTakesNoLongerThanItMay)
{
    const auto gate = std::make_shared<Gate>();
    QObject owner;
    std::vector<std::unique_ptr<SerialWorker>> workers;
    for (int i = 0; i < 8; ++i) {
        workers.push_back(std::make_unique<SerialWorker>(owner, 1s));
        const auto hang = [gate] {
            gate->begun.release();
            gate->open.acquire();
            gate->through.release();
            return 1;
        };
        workers.back()->run(hang, [](int) {});
    }
    ASSERT_TRUE(gate->begun.tryAcquire(8, 60'000));
    SerialWorker::limitPatience(300ms);
    QElapsedTimer timer;
    timer.start();
    workers.clear();
    EXPECT_GE(timer.elapsed(), 290) << "the first has all of it";
    EXPECT_LT(timer.elapsed(), 2500) << "each has waited for itself";
    SerialWorker::limitPatience(std::nullopt);
    gate->open.release(8);
    ASSERT_TRUE(gate->through.tryAcquire(8, 60'000));
}

TEST(SerialWorkerTest, WorkThatTouchesTheOwnerIsWaitedFor)
{
    QObject owner;
    bool isDone = false;
    {
        SerialWorker worker(owner, SerialWorker::endless);
        QSemaphore begun;
        worker.run(
            [&] {
                begun.release();
                QThread::msleep(400);
                return isDone = true;
            },
            [](bool) {});
        ASSERT_TRUE(begun.tryAcquire(1, 60'000));
    }
    EXPECT_TRUE(isDone);
}

} // namespace
} // namespace ambrelle
