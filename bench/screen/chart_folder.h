#pragma once

#include "drawn_chart.h"
#include "scratch_program.h"

#include <QFile>
#include <filesystem>
#include <string>
#include <vector>

namespace quarvel::bench {

/// A program folder of its own, whose airport LIPE has two departures that are charts drawn for the purpose.
class ChartFolder {
public:
    /// Charts of a size in pixels, each drawn otherwise, in as many shades from white to black. Needs a
    /// QGuiApplication.
    ChartFolder(QSize size, int shades) : program_(QUARVEL_PROGRAM) {
        program_.speakEnglish();
        const std::filesystem::path departures = program_.of("aeroporti/LIPE/Sid");
        std::filesystem::remove_all(departures);
        std::filesystem::create_directory(departures);
        for (const quint32 chart : {7U, 8U}) {
            charts_.push_back(departures / ("CHART" + std::to_string(chart) + ".gif"));
            QFile file(QString::fromStdString(charts_.back()));
            const QByteArray bytes = drawnChart(size, shades, chart);
            if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) fail("no chart");
        }
    }

    [[nodiscard]] std::string program() const { return program_.path(); }
    /// A command that opens both, the first one in front.
    [[nodiscard]] std::vector<std::string> with(std::vector<std::string> command) const {
        command.insert(command.end(), charts_.begin(), charts_.end());
        return command;
    }
    [[nodiscard]] const std::string& firstChart() const { return charts_.front(); }

private:
    ScratchProgram program_;
    std::vector<std::string> charts_;
};

} // namespace quarvel::bench
