// The same notes in a file of each kind that the client loads.
#pragma once

#include <cstddef>
#include <filesystem>

// A new folder that lasts as long as this object.
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

// Enters a folder within the working directory that has such files, and makes it first when
// it is missing. Each book has as many notes, with a page and a text of about 300 bytes.
// The annotation set has one book.
void enterNoteFiles(std::size_t books, std::size_t notes);
