#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <stdexcept>
#include <thread>
#include <vector>

#include "Fc/ComplexGeometry/FcComplexGeometryProcessorQueueContext.h"
#include "Fc/ComplexGeometry/FcDoubleResult.h"
#include "Fc/ComplexGeometry/FcSurfacesResult.h"
#include "Fc/ComplexGeometry/FcThreadedComplexGeometryProcessor.h"
#include "Tests/Support/ExpectAsserts.h"

namespace qor::fc {
namespace {

using Result = std::unique_ptr<FcComplexGeometryTaskResult>;
using Future = std::future<Result>;
constexpr auto High = FcComplexGeometryProcessorInterface::PriorityHigh;
constexpr auto Low = FcComplexGeometryProcessorInterface::PriorityLow;

class Task : public FcComplexGeometryTask {
 public:
  explicit Task(std::function<Result()> work) : m_work(std::move(work)) {}
  Result process() const override { return m_work(); }

 private:
  std::function<Result()> m_work;
};

std::unique_ptr<Task> task(std::function<Result()> work) {
  return std::make_unique<Task>(std::move(work));
}
std::unique_ptr<Task> number(double value) {
  return task([value] { return std::make_unique<FcDoubleResult>(value); });
}

class Pool : public FcThreadedComplexGeometryProcessor {
 public:
  explicit Pool(std::size_t threads) : m_threads(threads) {}
  using FcThreadedComplexGeometryProcessor::numThreads;

 protected:
  std::size_t numThreads() const override { return m_threads; }

 private:
  std::size_t m_threads;
};

/// Keeps the workers of a pool busy until it is opened.
class Gate {
 public:
  Gate(const FcThreadedComplexGeometryProcessor& pool,
       const FcComplexGeometryProcessorQueueContext& context, int workers = 1) {
    for (int i = 0; i < workers; ++i) {
      m_held.push_back(pool.processAsync(task([this] {
                                           ++m_taken;
                                           m_opened.wait();
                                           return std::make_unique<FcDoubleResult>(-1);
                                         }),
                                         context, High));
    }
    while (m_taken < workers) std::this_thread::yield();
  }
  ~Gate() {
    if (!m_isOpen) open();
  }
  void open() {
    m_isOpen = true;
    m_open.set_value();
    for (Future& held : m_held) held.wait();
  }
  std::vector<Future>& held() { return m_held; }

 private:
  std::promise<void> m_open;
  std::shared_future<void> m_opened{m_open.get_future()};
  std::atomic<int> m_taken{0};
  bool m_isOpen = false;
  std::vector<Future> m_held;
};

double value(Future& future) {
  const Result result = future.get();
  const auto* number = dynamic_cast<const FcDoubleResult*>(result.get());
  return number ? number->value() : -1;
}

TEST(ComplexGeometryProcessor, RunsOnTheCallersThreadWithoutAPool) {
  const Pool pool(1);
  std::thread::id thread;
  pool.process(Task([&] {
    thread = std::this_thread::get_id();
    return nullptr;
  }));
  EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST(ComplexGeometryProcessor, CastsAResultAndReportsOneOfAnotherType) {
  const Pool pool(1);
  EXPECT_EQ(pool.processAndCast<FcDoubleResult>(*number(3))->value(), 3);
  EXPECT_FALSE(pool.processAndCast<FcDoubleResult>(Task([] { return nullptr; })));
  const test::ExpectAsserts expected(
      {{"Unexpected result type", "qor::fc::FcComplexGeometryProcessorInterface::processAndCast"}});
  EXPECT_FALSE(pool.processAndCast<FcSurfacesResult>(*number(3)));
}

TEST(ComplexGeometryProcessor, TakesHighPriorityFirstAndTheLastQueuedBeforeTheOthers) {
  const Pool pool(1);
  const FcComplexGeometryProcessorQueueContext context;
  Gate gate(pool, context);
  std::vector<int> order;  // written by the one worker
  std::vector<Future> futures;
  const auto queue = [&](int id, FcComplexGeometryProcessorInterface::Priority priority) {
    futures.push_back(pool.processAsync(task([&order, id] {
                                          order.push_back(id);
                                          return nullptr;
                                        }),
                                        context, priority));
  };
  queue(1, Low), queue(10, High), queue(2, Low), queue(11, High), queue(3, Low);
  gate.open();
  for (Future& future : futures) EXPECT_FALSE(future.get());
  EXPECT_EQ(order, (std::vector<int>{11, 10, 3, 2, 1}));
}

TEST(ComplexGeometryProcessor, WithdrawsAContextAndLeavesTheOthers) {
  const Pool pool(1);
  const FcComplexGeometryProcessorQueueContext kept, withdrawn;
  EXPECT_NE(kept.id(), withdrawn.id());
  Gate gate(pool, withdrawn);
  std::vector<int> order;
  std::vector<Future> keptFutures, withdrawnFutures;
  for (int i = 0; i < 4; ++i) {
    keptFutures.push_back(pool.processAsync(task([&order, i] {
                                              order.push_back(i);
                                              return std::make_unique<FcDoubleResult>(i);
                                            }),
                                            kept, i % 2 ? High : Low));
    withdrawnFutures.push_back(pool.processAsync(number(9), withdrawn, i % 2 ? High : Low));
  }
  pool.abortAllClipping(withdrawn);
  for (Future& future : withdrawnFutures) EXPECT_FALSE(future.get());
  gate.open();
  for (int i = 0; i < 4; ++i) EXPECT_EQ(value(keptFutures[static_cast<std::size_t>(i)]), i);
  EXPECT_EQ(order, (std::vector<int>{3, 1, 2, 0}));
  EXPECT_TRUE(gate.held().front().get()) << "a task that runs isn't withdrawn";
}

TEST(ComplexGeometryProcessor, ReportsATaskThatThrowsAndGoesOn) {
  const test::ExpectAsserts expected(
      {"A queued task failed: out of luck", "A queued task failed: an exception of unknown type"});
  const Pool pool(1);
  const FcComplexGeometryProcessorQueueContext context;
  auto broken = pool.processAsync(task([]() -> Result { throw std::runtime_error("out of luck"); }),
                                  context, High);
  EXPECT_FALSE(broken.get());
  auto unknown = pool.processAsync(task([]() -> Result { throw 7; }), context, High);
  EXPECT_FALSE(unknown.get());
  auto sound = pool.processAsync(number(5), context, Low);
  EXPECT_EQ(value(sound), 5);
}

TEST(ComplexGeometryProcessor, BreaksThePromisesOfAFullQueueAtItsEndAndFinishesWhatRuns) {
  const FcComplexGeometryProcessorQueueContext context;
  std::atomic<int> ran{0};
  std::vector<Future> futures;
  Future running;
  {
    const Pool pool(1);
    std::promise<void> taken;
    running = pool.processAsync(task([&taken] {
                                  taken.set_value();
                                  std::this_thread::sleep_for(std::chrono::milliseconds(50));
                                  return std::make_unique<FcDoubleResult>(1);
                                }),
                                context, High);
    taken.get_future().wait();
    for (int i = 0; i < 5000; ++i) {
      futures.push_back(pool.processAsync(task([&ran] {
                                            ++ran;
                                            return nullptr;
                                          }),
                                          context, i % 2 ? High : Low));
    }
  }
  EXPECT_EQ(value(running), 1);
  EXPECT_EQ(ran, 0);
  for (Future& future : futures) {
    try {
      future.get();
      ADD_FAILURE() << "a task without a processor has a result";
    } catch (const std::future_error& error) {
      ASSERT_EQ(error.code(), std::future_errc::broken_promise);
    }
  }
}

TEST(ComplexGeometryProcessor, GivesEachOfThousandsOfTasksItsOwnResultUnderLoad) {
  const Pool pool(4);
  constexpr int perThread = 2000;
  std::atomic<int> withdrawnCount{0};
  std::vector<std::thread> callers;
  for (int caller = 0; caller < 3; ++caller) {
    callers.emplace_back([&pool, &withdrawnCount, caller] {
      const FcComplexGeometryProcessorQueueContext context;
      std::vector<Future> futures;
      for (int i = 0; i < perThread; ++i) {
        futures.push_back(
            pool.processAsync(number(caller * perThread + i), context, i % 3 ? Low : High));
        if (i % 500 == 250) pool.abortAllClipping(context);
        if (i % 10 == 0) pool.process(*number(i));
      }
      for (int i = 0; i < perThread; ++i) {
        const double got = value(futures[static_cast<std::size_t>(i)]);
        if (got == -1)
          ++withdrawnCount;
        else
          EXPECT_EQ(got, caller * perThread + i);
      }
    });
  }
  for (std::thread& caller : callers) caller.join();
  EXPECT_LT(withdrawnCount, 3 * perThread);
}

TEST(ComplexGeometryProcessor, HasAtLeastOneWorkerAndNoneBeforeTheFirstQueuedTask) {
  struct Counting : FcThreadedComplexGeometryProcessor {
    std::size_t numThreads() const override {
      ++asked;
      return FcThreadedComplexGeometryProcessor::numThreads();
    }
    mutable int asked = 0;
  } pool;
  pool.process(*number(1));
  EXPECT_EQ(pool.asked, 0);
  const FcComplexGeometryProcessorQueueContext context;
  for (int i = 0; i < 3; ++i) pool.processAsync(number(1), context, Low).wait();
  EXPECT_EQ(pool.asked, 1);
  EXPECT_GE(pool.numThreads(), 1u);
}

class CurrentProcessor : public testing::Test {
 protected:
  ~CurrentProcessor() override { setCurrentComplexGeometryProcessor(nullptr); }
};

TEST_F(CurrentProcessor, WaitsForItsWorkersWhenItIsReplaced) {
  setCurrentComplexGeometryProcessor(std::make_unique<Pool>(2));
  const FcComplexGeometryProcessorQueueContext context;
  std::promise<void> taken;
  std::atomic<bool> done{false};
  auto running = getCurrentComplexGeometryProcessor()->processAsync(
      task([&] {
        taken.set_value();
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        // What runs meets the new processor already.
        const bool replaced = dynamic_cast<Pool*>(getCurrentComplexGeometryProcessor()) == nullptr;
        done = true;
        return std::make_unique<FcDoubleResult>(replaced);
      }),
      context, High);
  taken.get_future().wait();
  setCurrentComplexGeometryProcessor(std::make_unique<FcThreadedComplexGeometryProcessor>());
  EXPECT_TRUE(done);
  EXPECT_EQ(value(running), 1);
}

TEST_F(CurrentProcessor, LosesTheQueuedTasksOfAContextThatEnds) {
  setCurrentComplexGeometryProcessor(std::make_unique<Pool>(1));
  const auto& pool = dynamic_cast<const Pool&>(*getCurrentComplexGeometryProcessor());
  const FcComplexGeometryProcessorQueueContext other;
  Gate gate(pool, other);
  auto kept = pool.processAsync(number(1), other, Low);
  Future lost;
  {
    const FcComplexGeometryProcessorQueueContext ended;
    lost = pool.processAsync(number(2), ended, High);
  }
  EXPECT_FALSE(lost.get());
  gate.open();
  EXPECT_EQ(value(kept), 1);
}

}  // namespace
}  // namespace qor::fc
