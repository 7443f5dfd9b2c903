// A log in memory, on a disk that may be full.
#pragma once

#include "common/core/log_file.h"

#include <cstdlib>
#include <string>

struct DiskFull {};

struct FakeLog : qv::LogBytes {
    std::string str;
    std::size_t nRoom = std::string::npos;

    std::uint64_t Size() override { return str.size(); }
    void Read(std::uint64_t nFrom, std::span<char> bytes) override {
        if (str.copy(bytes.data(), bytes.size(), nFrom) != bytes.size()) {
            std::abort();  // asked for what is not there
        }
    }
    void Write(std::uint64_t nFrom, std::string_view bytes) override {
        str.replace(nFrom, bytes.size(), bytes.substr(0, nRoom - nFrom));
        if (nFrom + bytes.size() > nRoom) {
            throw DiskFull();
        }
    }
    bool Cut(std::uint64_t nSize) override { return str.resize(nSize), true; }
};
