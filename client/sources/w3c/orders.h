// The orders of a set's notes, of one kind, so that they can be compared.
#pragma once

#include <string>
#include <vector>

#include "client/sources/content/json.h"

namespace client {

class Orders {
public:
    // Chooses the kind of position that most of the annotations have.
    explicit Orders(const std::vector<const JsonValue*>& annotations);

    // Returns the order; empty if the annotation has no position of this kind.
    std::string of(const JsonValue& annotation) const;

private:
    bool areCfis_ = false;
};

}  // namespace client
