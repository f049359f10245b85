// What does each control cost that a change of colour sets, told alone, and how often is Wine's server asked?
#include <array>
#include <fstream>
#include <string>
#include <vector>

#include "bench/Benches.h"
#include "bench/ColorChange.h"
#include "bench/RunningProgram.h"
#include "resources/resource.h"

namespace {

void SetSlider(HWND window, int value) {
    ::SetScrollPos(::GetDlgItem(window, IDC_hsbBlue), SB_CTL, value, TRUE);
}

void SetTypedValue(HWND window, int value) {
    ::SetWindowTextA(::GetDlgItem(window, IDC_txtSetBlue), std::to_string(value).c_str());
}

void SetPreview(HWND window, int value) {
    ::SetWindowTextA(::GetDlgItem(window, IDC_lblClipboard), std::to_string(value).c_str());
}

void RepaintSample(HWND window, int /*value*/) {
    const HWND container = ::GetDlgItem(window, IDC_picSampleContainer);
    ::InvalidateRect(::GetDlgItem(container, IDC_picSample), nullptr, FALSE);
}

void RepaintBar(HWND window, int /*value*/) {
    ::InvalidateRect(::GetDlgItem(window, IDC_lblColorBar), nullptr, FALSE);
}

struct Part {
    const char* name;
    void (*set)(HWND window, int value);
    std::vector<double> times = {};
    std::vector<double> requests = {};
};

/// How often Wine's server has answered. It opens the files itself, so "self" is the server.
double AnswersOfServer() {
    std::ifstream file(R"(Z:\proc\self\io)");
    std::string name;
    double count = 0;
    while (file >> name >> count) {
        if (name == "syscw:") return count;
    }
    return 0;
}

void MeasureBatch(Part& part, HWND window, int batch) {
    std::vector<double> times;
    const double before = AnswersOfServer();
    for (int i = 0; i < batch; ++i) {
        const double start = NowInMilliseconds();
        part.set(window, i * 37 % 256);  // far from one to the next
        PaintAll(window);
        times.push_back(NowInMilliseconds() - start);
    }
    part.requests.push_back((AnswersOfServer() - before) / batch);
    part.times.push_back(Median(times));
    PumpAll();
}

}  // namespace

void BenchParts(const Effort& effort) {
    constexpr int rounds = 21;
    const int batch = effort.of(200);
    const RunningProgram running;
    std::array<Part, 6> parts = {{{"slider", SetSlider},
                                  {"box", SetTypedValue},
                                  {"preview", SetPreview},
                                  {"sample", RepaintSample},
                                  {"bar", RepaintBar},
                                  {"program", ChangeThroughProgram}}};
    for (int round = 0; round < rounds; ++round) {
        for (Part& part : parts) MeasureBatch(part, running.form(), batch);
    }
    Tell("parts.count", rounds * batch);
    for (const Part& part : parts) {
        Tell(std::string("parts.") + part.name + ".ms", Median(part.times));
        Tell(std::string("parts.") + part.name + ".requests", Median(part.requests));
    }
}
