// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeSurface.h"
#include "platform/Printer.h"

#include <memory>
#include <string>
#include <vector>

namespace kestrova {

// A printer that keeps what it was given to print, and fails as a test tells it to.
class FakePrinter : public Printer {
public:
    Status There = Done{};   // what Check says
    Status Outcome = Done{}; // what becomes of the documents

    struct Document {
        PrinterSetup Setup;
        std::string Title;
        std::vector<Drawn> All;
        int Pages = 0;
    };
    std::vector<Document> Printed; // those that were finished, whatever the outcome

    Status Check() override { return There; }

    [[nodiscard]] std::unique_ptr<PrintJob> Begin(const PrinterSetup& setup,
                                                  const std::string& title) override {
        auto job = std::make_unique<Job>(*this, setup, title);
        job->Size = PrintableArea(setup);
        job->Outcome = Outcome;
        return job;
    }

private:
    class Job : public FakeJob {
    public:
        Job(FakePrinter& printer, const PrinterSetup& setup, std::string title)
            : printer_(printer), setup_(setup), title_(std::move(title)) {}
        Status Finish() override {
            printer_.Printed.push_back({setup_, title_, All, Pages});
            return FakeJob::Finish();
        }

    private:
        FakePrinter& printer_;
        PrinterSetup setup_;
        std::string title_;
    };
};

} // namespace kestrova
