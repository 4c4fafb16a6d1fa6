// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/device_query.h"

#include "host/printing/cups_handles.h"
#include "host/printing/ipp_query.h"
#include "host/printing/ppd_texts.h"
#include "host/printing/server_connection.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>

#include <array>
#include <csignal>

#include <cups/pwg.h>
#include <sys/prctl.h>

namespace host {

namespace {

constexpr double perMillimetre = 100; // IPP measures media in hundredths of a millimetre
constexpr int mostTrays = 100;
constexpr int levelsTime = 20'000; // milliseconds

LoadedTray trayOfSize(int width, int length)
{
    LoadedTray tray;
    if (width <= 0 || length <= 0)
        return tray;
    tray.width = width / perMillimetre;
    tray.length = length / perMillimetre;
    const pwg_media_t *known = pwgMediaForSize(width, length);
    tray.size = known && known->ppd
                    ? QString::fromUtf8(known->ppd)
                    : QStringLiteral("%1 × %2 mm")
                          .arg(QLocale().toString(tray.width), QLocale().toString(tray.length));
    return tray;
}

QString textIn(ipp_t *collection, const char *name)
{
    ipp_attribute_t *attribute = ippFindAttribute(collection, name, IPP_TAG_ZERO);
    return QString::fromUtf8(attribute ? ippGetString(attribute, 0, nullptr) : nullptr);
}

LoadedTray trayOf(ipp_t *media)
{
    ipp_attribute_t *size = ippFindAttribute(media, "media-size", IPP_TAG_BEGIN_COLLECTION);
    ipp_t *measures = size ? ippGetCollection(size, 0) : nullptr;
    const auto measure = [measures](const char *name) {
        ipp_attribute_t *attribute = measures ? ippFindAttribute(measures, name, IPP_TAG_INTEGER) : nullptr;
        return attribute ? ippGetInteger(attribute, 0) : 0;
    };
    LoadedTray tray = trayOfSize(measure("x-dimension"), measure("y-dimension"));
    tray.source = textIn(media, "media-source");
    tray.type = textIn(media, "media-type");
    return tray;
}

// Some printers report loaded sizes only by name.
QList<LoadedTray> traysOf(ipp_t *answer)
{
    QList<LoadedTray> trays;
    ipp_attribute_t *ready = ippFindAttribute(answer, "media-col-ready", IPP_TAG_BEGIN_COLLECTION);
    for (int i = 0; i < std::min(ippGetCount(ready), mostTrays); ++i)
        trays.append(trayOf(ippGetCollection(ready, i)));
    if (!trays.isEmpty())
        return trays;
    for (const QString &name : attributeTexts(answer, "media-ready").mid(0, mostTrays)) {
        const pwg_media_t *media = pwgMediaForPWG(name.toUtf8().constData());
        trays.append(media ? trayOfSize(media->width, media->length) : LoadedTray());
    }
    return trays;
}

Supply levelOf(const QString &name, qint64 level, qint64 most)
{
    const bool isKnown = level >= 0 && most > 0 && level <= most;
    // A multiple of what a device reports may exceed 64 bits.
    const double percent = isKnown ? static_cast<double>(level) * 100 / static_cast<double>(most) : -1;
    return {name, static_cast<int>(percent), level == 0};
}

// "type=sheetFeedAutoRemovableTray;maxcapacity=250;level=100;name=Tray 1"
Supply inputTrayOf(const QByteArray &text)
{
    QMap<QByteArray, QByteArray> parts;
    for (const QByteArray &part : text.split(';')) {
        const qsizetype equals = part.indexOf('=');
        parts.insert(part.left(equals).trimmed(), part.mid(equals + 1));
    }
    return levelOf(QString::fromUtf8(parts.value("name")), parts.value("level", "-1").toInt(),
                   parts.value("maxcapacity", "-1").toInt());
}

QList<Supply> paperOf(ipp_t *answer)
{
    QList<Supply> paper;
    ipp_attribute_t *inputs = ippFindAttribute(answer, "printer-input-tray", IPP_TAG_STRING);
    for (int i = 0; i < std::min(ippGetCount(inputs), mostTrays); ++i) {
        int length = 0;
        const void *text = ippGetOctetString(inputs, i, &length);
        const Supply tray = inputTrayOf(QByteArray(static_cast<const char *>(text), length));
        if (!tray.name.isEmpty())
            paper.append(tray);
    }
    return paper;
}

bool usesIpp(const QString &deviceUri)
{
    const QString scheme = deviceUri.section(QLatin1Char(':'), 0, 0);
    return scheme == QLatin1String("ipp") || scheme == QLatin1String("ipps") ||
           (scheme == QLatin1String("dnssd") && deviceUri.contains(QLatin1String("._ipp")));
}

// libcups finds the address of a printer that only has a Bonjour name.
std::optional<DeviceReport> queryWithIpp(const Destination &printer)
{
    cups_dest_t *list = nullptr;
    const int count = cupsAddDest(printer.queue.toUtf8().constData(), nullptr, 0, &list);
    const CupsDestinationPointer record(list);
    if (count != 1)
        return std::nullopt;
    record->num_options = cupsAddOption("device-uri", printer.deviceUri.toUtf8().constData(),
                                        record->num_options, &record->options);
    LoginKeeper noLogin;
    ServerConnection::disablePrompts();
    std::array<char, HTTP_MAX_URI> resource{};
    ServerConnection device(&noLogin, HttpPointer(cupsConnectDest(
                                          record.get(), CUPS_DEST_FLAGS_DEVICE | CUPS_DEST_FLAGS_UNCONNECTED,
                                          noLogin.patience.connectTime, nullptr, resource.data(),
                                          resource.size(), nullptr, nullptr)));
    const char *resolved = cupsGetOption("resolved-device-uri", record->num_options, record->options);
    static const std::array<const char *, 7> wanted = {
        "marker-names",    "marker-types", "marker-levels",     "marker-low-levels",
        "media-col-ready", "media-ready",  "printer-input-tray"};
    IppPointer request = printerRequest(IPP_OP_GET_PRINTER_ATTRIBUTES,
                                        resolved ? QByteArray(resolved) : printer.deviceUri.toUtf8());
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    const Reply reply = device.ask(std::move(request), resource.data());
    if (!reply.succeeded())
        return std::nullopt;
    ipp_t *answer = reply.message.get();
    return DeviceReport{suppliesOf(answer), paperOf(answer), traysOf(answer), QDateTime::currentDateTime()};
}

// The folder of programs that only other programs start is next to that of this program, also in a build
// tree.
QString levelsProgram()
{
    return QCoreApplication::applicationDirPath() +
           QStringLiteral("/../" KELMAR_LIBEXEC_DIR "/kelmar-printer-levels");
}

bool hasAddress(const QString &deviceUri)
{
    static const QStringList schemes = {
        QStringLiteral("ipp"),    QStringLiteral("ipps"), QStringLiteral("http"), QStringLiteral("https"),
        QStringLiteral("socket"), QStringLiteral("lpd"),  QStringLiteral("dnssd")};
    return schemes.contains(deviceUri.section(QLatin1Char(':'), 0, 0));
}

// Trays without a known size are reported as such, so that no size counts as missing.
void addLevel(const QList<QByteArray> &fields, DeviceReport *report)
{
    if (fields.size() < 4)
        return;
    Supply level =
        levelOf(QString::fromUtf8(fields.at(1)), fields.at(2).toLongLong(), fields.at(3).toLongLong());
    if (fields.at(0) == "supply") {
        report->supplies.append(level);
        return;
    }
    const QByteArray name = fields.value(4);
    const pwg_media_t *media = pwgMediaForPWG(name.constData());
    if (!media)
        media = pwgMediaForPPD(name.constData());
    const LoadedTray tray = media ? trayOfSize(media->width, media->length) : LoadedTray();
    if (!tray.size.isEmpty())
        level.name += QStringLiteral(" (%1)").arg(tray.size);
    report->paper.append(level);
    if (level.percent != 0)
        report->trays.append(tray);
}

// The program ends by itself when the printer does not respond.
std::optional<DeviceReport> queryWithSnmp(const QString &deviceUri)
{
    const QFileInfo program(levelsProgram());
    if (!program.isExecutable())
        return std::nullopt;
    QProcess levels;
    levels.setStandardErrorFile(QProcess::nullDevice());
    levels.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); }); // also if the dialog exits
    levels.start(program.absoluteFilePath(), {deviceUri});
    if (!levels.waitForFinished(levelsTime)) {
        levels.kill();
        levels.waitForFinished();
        return std::nullopt;
    }
    DeviceReport report;
    for (const QByteArray &line : levels.readAllStandardOutput().split('\n'))
        addLevel(line.split('\t'), &report);
    if (report.supplies.isEmpty() && report.paper.isEmpty())
        return std::nullopt;
    report.time = QDateTime::currentDateTime();
    return report;
}

} // namespace

std::optional<DeviceReport> queryDevice(const Destination &printer)
{
    std::optional<DeviceReport> report;
    if (usesIpp(printer.deviceUri))
        report = queryWithIpp(printer);
    const bool hasSupplies = !printer.supplies.isEmpty() || (report && !report->supplies.isEmpty());
    if (hasSupplies || !hasAddress(printer.deviceUri))
        return report;
    const auto levels = queryWithSnmp(printer.deviceUri);
    if (!levels || !report)
        return levels ? levels : report;
    report->supplies = levels->supplies;
    if (report->paper.isEmpty())
        report->paper = levels->paper;
    if (report->trays.isEmpty())
        report->trays = levels->trays;
    return report;
}

} // namespace host
