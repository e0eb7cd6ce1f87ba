#include "client/terminal/standard_output.h"

#include <cerrno>
#include <iostream>
#include <system_error>

#include "client/error.h"

namespace client {

StandardOutput::StandardOutput() : target_(std::cout.rdbuf()) { std::cout.rdbuf(this); }

StandardOutput::~StandardOutput() { std::cout.rdbuf(target_); }

void StandardOutput::requireWritten() {
    sync();
    if (error_ != 0) {
        throw UserError("Could not write the results", {error_, std::generic_category()});
    }
}

StandardOutput::int_type StandardOutput::overflow(int_type character) {
    if (traits_type::eq_int_type(character, traits_type::eof())) {
        return traits_type::not_eof(character);
    }
    const char letter = traits_type::to_char_type(character);
    return xsputn(&letter, 1) == 1 ? character : traits_type::eof();
}

std::streamsize StandardOutput::xsputn(const char* text, std::streamsize size) {
    const std::streamsize written = target_->sputn(text, size);
    keepCause(written == size);
    return written;
}

int StandardOutput::sync() {
    const int result = target_->pubsync();
    keepCause(result == 0);
    return result;
}

void StandardOutput::keepCause(bool isWritten) {
    if (!isWritten && error_ == 0) {
        error_ = errno != 0 ? errno : EIO;
    }
}

}  // namespace client
