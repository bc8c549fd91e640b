// SPDX-License-Identifier: GPL-3.0-or-later
#include "MainThread.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QThread>

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <utility>

namespace chronomender::mainThread {
namespace {

/// Work on its way to the main thread. Whoever moves it out of Waiting decides what becomes of it.
struct Task {
    enum class State { Waiting, Running, Done, Cancelled };
    std::function<void()> work;
    State state = State::Waiting;
};

class Receiver;

/// All state of the hand-over, under one lock: the work waits here and not inside Qt's event, which
/// only wakes the main thread.
struct Door {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::shared_ptr<Task>> tasks;
    bool isOpen = false;
    bool isWakePosted = false;
    std::unique_ptr<Receiver> receiver;
};

Door &door() {
    static Door theDoor;
    return theDoor;
}

bool run(Door &theDoor, std::unique_lock<std::mutex> &lock) {
    if (theDoor.tasks.empty())
        return false;
    const auto task = std::move(theDoor.tasks.front());
    theDoor.tasks.pop_front();
    task->state = Task::State::Running;
    lock.unlock();
    task->work();
    task->work = nullptr; // what it holds on to dies here, on the main thread
    lock.lock();
    task->state = Task::State::Done;
    theDoor.changed.notify_all();
    return true;
}

class Receiver final : public QObject {
public:
    void customEvent(QEvent *) override {
        Door &theDoor = door();
        std::unique_lock lock(theDoor.mutex);
        theDoor.isWakePosted = false;
        // Only what waits now: work that posts more work must not starve the other events.
        for (std::size_t left = theDoor.tasks.size(); left > 0 && run(theDoor, lock); --left) {
        }
    }
};

std::shared_ptr<Task> enqueue(Door &theDoor, std::function<void()> work) {
    auto task = std::make_shared<Task>();
    task->work = std::move(work);
    theDoor.tasks.push_back(task);
    if (!std::exchange(theDoor.isWakePosted, true))
        QCoreApplication::postEvent(theDoor.receiver.get(), new QEvent(QEvent::User));
    return task;
}

} // namespace

void initialise() {
    Door &theDoor = door();
    const std::lock_guard lock(theDoor.mutex);
    theDoor.receiver = std::make_unique<Receiver>();
    theDoor.isWakePosted = false;
    theDoor.isOpen = true;
}

bool isCurrent() {
    Door &theDoor = door();
    const std::lock_guard lock(theDoor.mutex);
    return theDoor.receiver && theDoor.receiver->thread() == QThread::currentThread();
}

void post(std::function<void()> work) {
    Door &theDoor = door();
    const std::lock_guard lock(theDoor.mutex);
    if (theDoor.isOpen)
        enqueue(theDoor, std::move(work));
}

CallResult callAndWait(std::function<void()> work) {
    Door &theDoor = door();
    std::unique_lock lock(theDoor.mutex);
    if (!theDoor.isOpen)
        return CallResult::Cancelled;
    if (theDoor.receiver->thread() == QThread::currentThread()) {
        lock.unlock();
        work();
        return CallResult::Done;
    }
    const auto task = enqueue(theDoor, std::move(work));
    theDoor.changed.wait(lock, [&task] {
        return task->state == Task::State::Done || task->state == Task::State::Cancelled;
    });
    return task->state == Task::State::Done ? CallResult::Done : CallResult::Cancelled;
}

void beginShutdown() {
    Door &theDoor = door();
    std::deque<std::shared_ptr<Task>> dropped; // destroyed after the lock is given back
    const std::lock_guard lock(theDoor.mutex);
    theDoor.isOpen = false;
    dropped.swap(theDoor.tasks);
    for (const auto &task : dropped)
        task->state = Task::State::Cancelled;
    theDoor.changed.notify_all();
}

} // namespace chronomender::mainThread
