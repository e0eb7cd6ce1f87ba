// Concurrent exporters, in processes and in threads.
#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <set>
#include <thread>
#include <vector>

#include "dump/reader.h"
#include "incoming_notes.h"

namespace {

struct ConcurrentUse : IncomingNotes {
    ConcurrentUse() { prepare(40, 2000); }
};

pid_t importingProcess(const char* document) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(CExporter("b00c", "Notes").importFile(document) < 0 ? 1 : 0);
    }
    return child;
}

std::string otherDocument() {
    const ScratchDirectory elsewhere;
    merge({bookOf(30, 90, 3, 1000)});
    return documentOf(exported());
}

// The default of some C libraries; instrumented code needs more.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t kSmallStack = 1024 << 10;
#else
constexpr std::size_t kSmallStack = 128 << 10;
#endif

}  // namespace

TEST_F(ConcurrentUse, SmallStackThreadExportsAndImports) {
    const auto exportAndImport = [](void*) -> void* {
        const CExporter exporter(kBook, "Notes");
        EXPECT_GT(exporter.importFile(kDocument), 0);
        EXPECT_EQ(exporter.exportNotes(), 0);
        return nullptr;
    };
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    EXPECT_EQ(pthread_attr_setstacksize(&attributes, kSmallStack), 0);
    pthread_t thread;
    ASSERT_EQ(pthread_create(&thread, &attributes, exportAndImport, nullptr), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
    EXPECT_EQ(recordsOnDevice(), after_);
}

TEST_F(ConcurrentUse, ParallelProcessesImportEveryRecord) {
    writeFile("other.html", otherDocument());
    std::filesystem::remove_all("mnt");
    for (const char* document : {kDocument, "other.html"}) {
        EXPECT_GT(CExporter(kBook, "Notes").importFile(document), 0);
    }
    const std::string both = recordsOnDevice();
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        std::filesystem::remove_all("mnt");
        std::vector<pid_t> processes;
        for (const char* document : {kDocument, "other.html", kDocument, "other.html"}) {
            processes.push_back(importingProcess(document));
        }
        for (const pid_t process : processes) {
            int status = 0;
            waitpid(process, &status, 0);
            EXPECT_EQ(status, 0);
        }
        EXPECT_EQ(recordsOnDevice(), both);
    }
}

TEST_F(ConcurrentUse, ExportHoldsOneDatabaseState) {
    std::atomic<bool> ends = false;
    std::thread writer([&] {
        for (int time = 3; !ends; ++time) {
            merge({bookOf(0, 40, time, 1000)});
        }
    });
    for (int round = 0; round < 20; ++round) {
        std::set<std::int64_t> times;
        const std::vector<host::BookRecord> books = host::readPayload({exported()});
        for (const host::NoteRecord& note : books.at(0).notes) {
            times.insert(note.tags.at(0).timestamp);
        }
        EXPECT_EQ(times.size(), 1U) << "round " << round;
    }
    ends = true;
    writer.join();
}

TEST_F(ConcurrentUse, ThreadsWithOwnExportersStayIndependent) {
    std::vector<std::thread> threads;
    for (const char* directory : {"one", "two"}) {
        threads.emplace_back([directory] {
            for (int round = 0; round < 20; ++round) {
                const CExporter exporter(kBook, directory);
                EXPECT_GE(exporter.importFile(kDocument), 0);
                const std::string name = exporter.fileName();
                EXPECT_EQ(exporter.exportNotes(), 0);
                EXPECT_NE(readFile(name).find("</html>"), std::string::npos);
                EXPECT_EQ(exporter.importFile(name.c_str()), 0);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(recordsOnDevice(), after_);
}
