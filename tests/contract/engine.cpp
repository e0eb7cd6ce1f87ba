#include "engine.h"

#include "contract_device.h"

Engine::Engine() {
    std::string path = readerDatabasePath();
    database_.open(path);
}

int imported(const std::string& document) {
    writeFile("export.html", document);
    return Engine()->books_import("export.html");
}
