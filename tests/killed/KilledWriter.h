#pragma once

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <functional>
#include <new>
#include <stdexcept>
#include <thread>

/// A process that does one thing over and over again, until it is killed.
class KilledWriter
{
public:
    /// What it does gets the number of the round, from 0.
    explicit KilledWriter(const std::function<void(unsigned)> &write)
        : m_progress(sharedProgress())
        , m_process(fork())
    {
        if (m_process < 0)
            throw std::runtime_error("a process cannot be started");
        if (m_process > 0)
            return;
        // It does not outlive a test that is killed itself.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (unsigned round = 0;; ++round) {
            m_progress->isWriting = true;
            write(round);
            m_progress->isWriting = false;
            m_progress->rounds = round + 1;
        }
    }

    KilledWriter(const KilledWriter &) = delete;
    KilledWriter &operator=(const KilledWriter &) = delete;

    ~KilledWriter()
    {
        kill();
        munmap(m_progress, sizeof *m_progress);
    }

    /// Waits until it has begun, and then for some time.
    void work(std::chrono::microseconds time) const
    {
        while (!m_progress->isWriting && m_progress->rounds == 0) {
            if (waitpid(m_process, nullptr, WNOHANG) != 0)
                throw std::runtime_error("the process ended before it began");
            std::this_thread::yield();
        }
        std::this_thread::sleep_for(time);
    }

    void kill()
    {
        if (m_process <= 0)
            return;
        ::kill(m_process, SIGKILL);
        int status = 0;
        waitpid(m_process, &status, 0);
        m_wasKilled = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
        m_process = 0;
    }

    /// Once it is dead: that it did not end by itself, and that it was in the midst of its work.
    bool wasKilled() const { return m_wasKilled; }
    bool wasWriting() const { return m_progress->isWriting; }

private:
    struct Progress
    {
        std::atomic<bool> isWriting = false;
        std::atomic<unsigned> rounds = 0;
    };

    static Progress *sharedProgress()
    {
        void *memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE,
                            MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED)
            throw std::runtime_error("no memory can be shared");
        return new (memory) Progress;
    }

    Progress *m_progress;
    pid_t m_process;
    bool m_wasKilled = false;
};
