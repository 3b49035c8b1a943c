// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/print/CupsQueue.h"

#include "platform/qt/print/CupsLine.h"
#include "platform/qt/print/CupsOptions.h"

#include <algorithm>

namespace kestrova {

namespace {

using Moment = CupsLine::Moment;

struct FreeQueue {
    void operator()(cups_dest_t* queue) const { cupsFreeDests(1, queue); }
};
using Queue = std::unique_ptr<cups_dest_t, FreeQueue>;

struct FreeInfo {
    void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
};
using QueueInfo = std::unique_ptr<cups_dinfo_t, FreeInfo>;

struct DeleteIpp {
    void operator()(ipp_t* message) const { ippDelete(message); }
};

Queue FirstOfAll(const CupsLine& line) {
    cups_dest_t* all = nullptr;
    const int count = cupsGetDests2(line.Http(), &all);
    cups_dest_t* first = nullptr;
    if (count > 0) {
        cupsCopyDest(all, 0, &first);
    }
    cupsFreeDests(count, all);
    return Queue(first);
}

Result<std::shared_ptr<cups_dest_t>> Find(const CupsLine& line) {
    if (!line.IsOpen()) {
        // Where nobody listens there are no printers either.
        Error trouble = line.Trouble();
        trouble.Code = line.InTime() ? ErrorCode::NotFound : ErrorCode::Busy;
        return trouble;
    }
    Queue queue(cupsGetNamedDest(line.Http(), nullptr, nullptr));
    if (!queue && line.InTime()) {
        queue = FirstOfAll(line);
    }
    if (!queue) {
        return line.InTime() ? Error{ErrorCode::NotFound, line.Trouble().Text} : line.Trouble();
    }
    return std::shared_ptr<cups_dest_t>(std::move(queue));
}

// Best effort: a system that does not answer any more cannot be told.
void Withdraw(cups_dest_t* queue, int job) {
    constexpr std::chrono::seconds kPatience{10};
    const CupsLine line(std::chrono::steady_clock::now() + kPatience);
    if (line.IsOpen()) {
        cupsCancelDestJob(line.Http(), queue, job);
    }
}

// Writes in pieces, so that a system that takes ever less is found out.
bool Upload(const CupsLine& line, const std::string& bytes) {
    constexpr std::size_t kPiece = 65'536;
    for (std::size_t at = 0; at < bytes.size(); at += kPiece) {
        const std::size_t size = std::min(kPiece, bytes.size() - at);
        if (!line.InTime() ||
            cupsWriteRequestData(line.Http(), bytes.data() + at, size) != HTTP_STATUS_CONTINUE) {
            return false;
        }
    }
    return line.InTime();
}

// Whether the system says that it has the document whole. What the library takes for an answer
// where none came is no success, so that only an answer counts that is there.
bool IsTaken(const CupsLine& line) {
    const std::unique_ptr<ipp_t, DeleteIpp> answer(cupsGetResponse(line.Http(), "/"));
    return answer && ippGetStatusCode(answer.get()) <= IPP_STATUS_OK_CONFLICTING;
}

// The document of a job that has a number; whether the queue has it.
bool SendDocument(const CupsLine& line, cups_dest_t* queue, cups_dinfo_t* info, int job,
                  const PrintOrder& order, const std::string& title) {
    return cupsStartDestDocument(line.Http(), queue, info, job, title.c_str(), CUPS_FORMAT_PDF, 0,
                                 nullptr, 1) == HTTP_STATUS_CONTINUE &&
           Upload(line, order.Pdf) && IsTaken(line);
}

} // namespace

PrintFinding FindQueue(Moment end) {
    const CupsLine line(end);
    const auto queue = Find(line);
    return {queue ? Status(Done{}) : Status(queue.Failure()), {}};
}

PrintFinding SendToQueue(const PrintOrder& order, Moment end) {
    const CupsLine line(end);
    const auto found = Find(line);
    if (!found) {
        return {found.Failure(), {}};
    }
    const std::shared_ptr<cups_dest_t>& queue = found.Value();
    const QueueInfo info(cupsCopyDestInfo(line.Http(), queue.get()));
    if (!info || !line.InTime()) {
        return {line.Trouble(), {}};
    }
    const CupsOptions options(order.Setup, *queue);
    const std::string title = QueueTitle(order.Title);
    int job = 0;
    cupsCreateDestJob(line.Http(), queue.get(), info.get(), &job, title.c_str(), options.Count(),
                      options.List());
    if (job == 0) {
        return {line.Trouble(), {}};
    }
    const bool sent =
        line.InTime() && SendDocument(line, queue.get(), info.get(), job, order, title);
    return {sent ? Status(Done{}) : Status(line.Trouble()),
            [queue, job] { Withdraw(queue.get(), job); }};
}

} // namespace kestrova
