// The style sheet that a new device gets, so that its pages look well.
#pragma once

extern const char* const kStyleSheet;
