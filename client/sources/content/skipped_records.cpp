#include "client/sources/content/skipped_records.h"

#include "client/text/first_few.h"
#include "client/text/one_line.h"

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
