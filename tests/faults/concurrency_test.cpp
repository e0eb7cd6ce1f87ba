// Several exporters at once, in processes and in threads.
#include <sys/wait.h>
#include <unistd.h>

#include <thread>
#include <vector>

#include "import_result.h"
#include "incoming_notes.h"

namespace {

class Together : public IncomingNotes {
protected:
    Together() { prepare(40, 2000); }
};

// Forks a process that imports the document once the pipe `gate` is closed. Its exit status
// is 0 for success, or the negative result without its sign.
pid_t importingProcess(const int (&gate)[2], const char* document) {
    const pid_t child = fork();
    if (child == 0) {
        close(gate[1]);
        char byte = 0;
        const ssize_t closed = read(gate[0], &byte, 1);
        const int result = CExporter("b00c", "Notes").importFile(document);
        _exit(result < 0 ? -result : static_cast<int>(closed));
    }
    return child;
}

bool succeeded(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_TRUE(WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == -host::kDatabaseError);
    return WEXITSTATUS(status) == 0;
}

std::string otherDocument() {
    const ScratchDirectory elsewhere;
    merge({bookOf(30, 90, 3, 1000)});
    return documentOf(exported());
}

}  // namespace

TEST_F(Together, TwoProcessesImportDifferentDocumentsOfOneBook) {
    writeFile("other.html", otherDocument());
    const CExporter exporter(kBook, "Notes");
    exporter.importFile(kDocument);
    exporter.importFile("other.html");
    const std::string both = recordsOnDevice();
    for (int round = 0; round < 20; ++round) {
        restore();
        int gate[2];
        ASSERT_EQ(pipe(gate), 0);
        const pid_t first = importingProcess(gate, kDocument);
        const pid_t second = importingProcess(gate, "other.html");
        close(gate[0]);
        close(gate[1]);
        const bool firstCame = succeeded(first), secondCame = succeeded(second);
        EXPECT_EQ(recordsOnDevice() == both, firstCame && secondCame);
        const CExporter again(kBook, "Notes");
        EXPECT_GE(again.importFile(kDocument), 0);
        EXPECT_GE(again.importFile("other.html"), 0);
        EXPECT_EQ(recordsOnDevice(), both) << "what a loser left out can still come";
    }
}

TEST_F(Together, TwoThreadsExportAndImportEachWithItsOwnExporter) {
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
