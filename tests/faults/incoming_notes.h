// A device whose book has notes, and an exported document that brings newer and more ones.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "c_exporter.h"
#include "records.h"

class IncomingNotes : public testing::Test {
    const ScratchDirectory device_;

protected:
    // As many notes on the device as in the document, half of them the same ones, each with
    // a text of `textSize` bytes.
    void prepare(int notes, std::size_t textSize);

    // Puts the device back as it was.
    void restore() const;

    static constexpr char kBook[] = "b00c";
    static constexpr char kDocument[] = "incoming.html";

    std::string before_;  // the device's records
    std::string after_;   // its records once the document is imported
};

// The book b00c with notes of those numbers; each text begins with the timestamp.
host::BookRecord bookOf(int first, int last, std::int64_t timestamp, std::size_t textSize);
