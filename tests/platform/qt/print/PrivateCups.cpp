// SPDX-License-Identifier: GPL-3.0-or-later
#include "PrivateCups.h"

#include "platform/Printer.h"
#include "platform/qt/QtEventLoop.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>
#include <memory>

#include <cups/cups.h>

namespace kestrova {

namespace {

using namespace std::chrono_literals;

QString FindScheduler() {
    return QStandardPaths::findExecutable(
        QStringLiteral("cupsd"),
        {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin"), QStringLiteral("/sbin")});
}

int FreePort() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

// Describes a printer that takes PDF pages as they come.
QByteArray Description() {
    QByteArray sizes;
    QByteArray regions;
    QByteArray papers;
    for (const int paper : {1, 3, 5, 6, 7, 8, 9, 11, 12, 13}) { // the others are the same sheets
        const PageSize size = PaperSizeOf({paper, Orientation::Portrait});
        const QByteArray name = " Paper" + QByteArray::number(paper);
        const QByteArray points =
            QByteArray::number(size.Width / 20.0) + ' ' + QByteArray::number(size.Height / 20.0);
        sizes += "*PageSize" + name + ": \"<</PageSize[" + points + "]>>\"\n";
        regions += "*PageRegion" + name + ": \"<</PageSize[" + points + "]>>\"\n";
        papers += "*ImageableArea" + name + ": \"0 0 " + points + "\"\n*PaperDimension" + name +
                  ": \"" + points + "\"\n";
    }
    return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
           "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"TEST.PPD\"\n"
           "*Manufacturer: \"Test\"\n*Product: \"(Test)\"\n*ModelName: \"Test\"\n"
           "*ShortNickName: \"Test\"\n*NickName: \"Test\"\n*PSVersion: \"(3010.000) 0\"\n"
           "*LanguageLevel: \"3\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n"
           "*FileSystem: False\n*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n"
           "*OpenUI *PageSize/Media: PickOne\n*DefaultPageSize: Paper1\n" +
           sizes +
           "*CloseUI: *PageSize\n*OpenUI *PageRegion/Media: PickOne\n"
           "*DefaultPageRegion: Paper1\n" +
           regions +
           "*CloseUI: *PageRegion\n*DefaultImageableArea: Paper1\n"
           "*DefaultPaperDimension: Paper1\n" +
           papers +
           "*OpenUI *ColorModel/Color: PickOne\n*DefaultColorModel: RGB\n*ColorModel RGB: \"\"\n"
           "*ColorModel Gray: \"\"\n*CloseUI: *ColorModel\n";
}

struct CloseHttp {
    void operator()(http_t* http) const { httpClose(http); }
};
struct DeleteIpp {
    void operator()(ipp_t* message) const { ippDelete(message); }
};

std::unique_ptr<http_t, CloseHttp> Connect(int port) {
    return std::unique_ptr<http_t, CloseHttp>(
        httpConnect2("127.0.0.1", port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1, 5000, nullptr));
}

} // namespace

PrivateCups::PrivateCups() : port_(FreePort()) {
    for (const char* const name : {"root", "spool", "tmp", "cache", "state", "out"}) {
        QDir().mkpath(In(name));
    }
    // Where root starts it, its filters run as somebody else.
    for (const char* const name : {"", "out"}) {
        QFile::setPermissions(In(name), QFileDevice::Permissions(0x7777));
    }
    Write("cupsd.conf", "Listen 127.0.0.1:" + QByteArray::number(port_) +
                            "\nBrowsing Off\nDefaultAuthType None\nPreserveJobFiles Yes\n"
                            "PreserveJobHistory Yes\nWebInterface No\nLogLevel debug\n"
                            "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
                            "<Policy default>\nJobPrivateAccess all\nJobPrivateValues none\n"
                            "<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n");
    const QByteArray here = folder_.path().toUtf8();
    Write("cups-files.conf",
          "FileDevice Yes\nServerRoot " + here + "/root\nRequestRoot " + here + "/spool\nTempDir " +
              here + "/tmp\nCacheDir " + here + "/cache\nStateDir " + here + "/state\nAccessLog " +
              here + "/access\nErrorLog " + here + "/error\nPageLog " + here + "/page\n");
    Write("test.ppd", Description());
    qputenv("HOME", here);
    qputenv("CUPS_SERVERROOT", here + "/root");
    Use(port_);
    // A copy of the program is free of what a system allows its own one to touch.
    QFile::copy(FindScheduler(), In("cupsd"));
    scheduler_.setStandardErrorFile(In("said"));
    scheduler_.start(In("cupsd"), {QStringLiteral("-f"), QStringLiteral("-c"), In("cupsd.conf"),
                                   QStringLiteral("-s"), In("cups-files.conf")});
}

PrivateCups::~PrivateCups() {
    Stop();
    qunsetenv("CUPS_SERVER");
}

QString PrivateCups::In(const char* name) const {
    return folder_.filePath(QLatin1String(name));
}

void PrivateCups::Write(const char* name, const QByteArray& content) const {
    QFile file(In(name));
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

bool PrivateCups::IsInstalled() {
    return !FindScheduler().isEmpty();
}

bool PrivateCups::Runs() {
    return QtEventLoop().WaitUntil(
        [this] {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port_));
            return socket.waitForConnected(100);
        },
        20s);
}

void PrivateCups::Stop() {
    scheduler_.terminate();
    if (!scheduler_.waitForFinished(10'000)) {
        scheduler_.kill();
        scheduler_.waitForFinished();
    }
}

void PrivateCups::Use(int port) {
    qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(port));
}

bool PrivateCups::AddQueue(const QString& name) {
    return Tool(QStringLiteral("lpadmin"),
                {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                 QStringLiteral("file://") + In("out") + u'/' + name + QStringLiteral(".pdf"),
                 QStringLiteral("-P"), In("test.ppd")}) &&
           Tool(QStringLiteral("lpadmin"), {QStringLiteral("-d"), name});
}

bool PrivateCups::Tool(const QString& name, const QStringList& arguments) const {
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CUPS_SERVER"), QStringLiteral("127.0.0.1:%1").arg(port_));
    environment.insert(QStringLiteral("PATH"), environment.value(QStringLiteral("PATH")) +
                                                   QStringLiteral(":/usr/sbin:/sbin"));
    tool.setProcessEnvironment(environment);
    tool.setProgram(QStandardPaths::findExecutable(
        name, environment.value(QStringLiteral("PATH")).split(u':')));
    tool.setArguments(arguments);
    tool.start();
    return tool.waitForFinished(20'000) && tool.exitCode() == 0;
}

std::map<std::string, std::string> PrivateCups::Job(int number) const {
    const auto http = Connect(port_);
    ipp_t* const request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const std::string uri = "ipp://localhost/jobs/" + std::to_string(number);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
    const std::unique_ptr<ipp_t, DeleteIpp> response(cupsDoRequest(http.get(), request, "/jobs"));
    std::map<std::string, std::string> job;
    for (ipp_attribute_t* field = response ? ippFirstAttribute(response.get()) : nullptr;
         field != nullptr; field = ippNextAttribute(response.get())) {
        char value[1024];
        ippAttributeString(field, value, sizeof value);
        if (ippGetGroupTag(field) == IPP_TAG_JOB && ippGetName(field) != nullptr) {
            job[ippGetName(field)] = value;
        }
    }
    return job;
}

void PrivateCups::ForgetUserChoices() const {
    QFile::remove(In(".cups/lpoptions"));
    QFile::remove(In("root/lpoptions"));
}

int PrivateCups::LastJob() const {
    const auto http = Connect(port_);
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs2(http.get(), &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
    int last = 0;
    for (int i = 0; i < count; ++i) {
        last = std::max(last, jobs[i].id);
    }
    cupsFreeJobs(count, jobs);
    return last;
}

QString PrivateCups::Arrived(int job) const {
    const QString path = In("spool") + QStringLiteral("/d%1-001").arg(job, 5, 10, QLatin1Char('0'));
    return QFile::exists(path) ? path : QString();
}

QString PrivateCups::Printed(const QString& queue) {
    const QString path = In("out") + u'/' + queue + QStringLiteral(".pdf");
    const int job = LastJob();
    QtEventLoop().WaitUntil([&] { return Job(job)["job-state"] == "completed"; }, 20s);
    return QFile::exists(path) ? path : QString();
}

QByteArray PrivateCups::Log() const {
    QByteArray all;
    for (const char* const name : {"said", "error"}) {
        QFile file(In(name));
        if (file.open(QIODevice::ReadOnly)) {
            all += file.readAll();
        }
    }
    return all.right(4000);
}

} // namespace kestrova
