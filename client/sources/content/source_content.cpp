#include "client/sources/content/source_content.h"

#include "client/text/control_characters.h"
#include "client/text/first_few.h"

namespace client {

void SkippedRecords::add(const std::string& record) {
    if (first_.size() < kMaxNamed) {
        first_.push_back(oneLine(record));
    }
    ++count_;
}

std::string SkippedRecords::summary(const std::string& file) const {
    if (count_ == 0) {
        return {};
    }
    return "Not everything in " + file + " could be read:\n" + firstFew(first_, count_);
}

}  // namespace client
