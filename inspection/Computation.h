#pragma once

#include <QThreadPool>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <utility>

/// Computes a result beside the GUI thread, for a job whose steps wait for it. Only for what asks
/// no service: the services are not thread-safe.
///
/// Whoever destroys this before the end does not wait: what is computed is dropped. So the function
/// has to own all that it uses.
template <typename Result>
class Computation
{
public:
    explicit Computation(std::function<Result()> function)
    {
        auto task = std::make_shared<std::packaged_task<Result()>>(std::move(function));
        m_result = task->get_future();
        QThreadPool::globalInstance()->start(new Run([task] { (*task)(); }));
    }

    /// Waits for the end, but for no longer than that; true when it has come.
    bool isDone(std::chrono::milliseconds patience) const
    {
        return m_result.wait_for(patience) == std::future_status::ready;
    }
    /// The result; once, when it is done.
    Result take() { return m_result.get(); }

private:
    class Run : public QRunnable
    {
    public:
        explicit Run(std::function<void()> function) : m_function(std::move(function)) {}
        void run() override { m_function(); }

    private:
        std::function<void()> m_function;
    };

    std::future<Result> m_result;
};
