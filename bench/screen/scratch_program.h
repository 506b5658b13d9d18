#pragma once

#include "process.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace quarvel::bench {

/// A program folder of its own: the program to be run, with the shipped data beside it. Gone with this
/// object.
class ScratchProgram {
public:
    explicit ScratchProgram(const std::filesystem::path& program) : program_(program.filename()) {
        std::string name = (std::filesystem::temp_directory_path() / "bench_screen.XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) fail("no temporary folder");
        folder_ = name;
        std::filesystem::copy(QUARVEL_DATA_FOLDER, folder_, std::filesystem::copy_options::recursive);
        std::filesystem::copy(program, folder_);
    }
    ~ScratchProgram() { std::filesystem::remove_all(folder_); }
    ScratchProgram(const ScratchProgram&) = delete;
    ScratchProgram& operator=(const ScratchProgram&) = delete;

    /// Nobody presents an airport in English: the character would be one more window, and its voice and moves
    /// would be measured with everything that happens meanwhile.
    void speakEnglish() const {
        std::ofstream(of("LangSetting.ini")) << "[Language]\r\nCurrentLanguage=English\r\n";
    }

    [[nodiscard]] std::string path() const { return folder_ / program_; }
    [[nodiscard]] std::filesystem::path of(const char* relative) const { return folder_ / relative; }

private:
    std::filesystem::path folder_;
    std::filesystem::path program_;
};

} // namespace quarvel::bench
