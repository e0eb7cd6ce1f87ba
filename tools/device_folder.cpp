#include "device_folder.h"

#include <filesystem>

#include "complaint.h"
#include "device_paths.h"

namespace fs = std::filesystem;

void makeAbsolute(std::string& path) {
    if (!path.empty()) {
        path = fs::absolute(path).string();
    }
}

void enterDevice(const std::string& folder, Device device) {
    if (!folder.empty()) {
        fs::current_path(folder);
    }
    if (device == Device::MustExist && !fs::exists(host::kReaderDatabasePath)) {
        throw Complaint(
            "There is no device in " + fs::current_path().string() +
            ". Name its folder with -C, or make one with \"notes-export load\".");
    }
}
