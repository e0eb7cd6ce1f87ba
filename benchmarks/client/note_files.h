// Equal notes in a file of each kind that the client loads.
#pragma once

#include <cstddef>
#include <filesystem>

// A new folder; the destructor removes it.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

inline constexpr char kDeviceFile[] = "device.json";
inline constexpr char kClippings[] = "clippings.txt";
inline constexpr char kKoboDatabase[] = "KoboReader.sqlite";
inline constexpr char kAnnotationSet[] = "set.annotation";
inline constexpr char kSidecar[] = "metadata.epub.lua";

// Enters a folder in the working directory that has such files, and creates it if it is
// missing. Each book has `notes` notes, with a page and a text of about 300 bytes. The
// annotation set and the sidecar have one book.
void enterNoteFiles(std::size_t books, std::size_t notes);
