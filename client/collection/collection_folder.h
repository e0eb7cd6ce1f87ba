// The folder that holds the device, and the paths around it.
#pragma once

#include <string>

// A path as the caller means it, whichever folder the device is in.
void makeAbsolute(std::string& path);

enum class Device { MayBeEmpty, MustExist };

// Makes the device's folder the working directory, where the library finds the device; an
// empty one leaves the caller's.
void enterDevice(const std::string& folder, Device device);

// Whether there is a device in the working directory.
bool isDevice();

// Makes a device where there is none: the folders of the databases, which come into being
// there when they are looked for, and a style sheet.
void prepareDevice();
