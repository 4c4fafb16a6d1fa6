// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/host/host_fixture.h"

#include "platform/exception.h"
#include "tests/support/paths.h"

#include <QFile>
#include <QTemporaryFile>

using namespace host;
using namespace Qt::StringLiterals;

QByteArray officePpd()
{
    QByteArray body = "*ModelName: \"Test Office\"\n";
    body += ppdGroup("General/General",
                     ppdOption("PageSize/Paper Size", {"A4/A4", "A3/A3"}) +
                         ppdOption("MediaType/Paper Type", {"Plain/Plain Paper", "Thick/Heavy Paper"}) +
                         ppdOption("Duplex/Two-Sided", {"None/Off", "DuplexNoTumble/Long Edge"}) +
                         ppdOption("Staple/Stapling", {"Off/No", "Left/Top Left"}));
    body += ppdGroup("Color/Colour",
                     ppdOption("ColorType/Colour Mode", {"Auto/Automatic", "Mono/Black and White"}) +
                         ppdOption("Cyan/Cyan Balance", {"0/Neutral", "1/Plus 1", "2/Plus 2"}) +
                         ppdOption("Sharp/Sharpness", {"0/Neutral", "1/Plus 1"}));
    body += ppdGroup("InstallableOptions/Installed", ppdOption("Stapler/Stapler", {"False/No", "True/Yes"}));
    for (const char *choice : {"1", "2"}) {
        body += ppdConstraint("ColorType Mono", "Cyan " + QByteArray(choice));
        body += ppdConstraint("Cyan " + QByteArray(choice), "ColorType Mono");
    }
    body += ppdConstraint("MediaType Thick", "Duplex");
    body += ppdConstraint("Stapler False", "Staple Left");
    return body;
}

QByteArray customPpd()
{
    QFile file(sourcePath("/tests/host/custom_values.ppd"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(file.errorString()));
    (void)file.readLine(); // openPpd() adds it
    return file.readAll();
}

std::unique_ptr<PpdDocument> openPpd(const QByteArray &body)
{
    QTemporaryFile file;
    if (!file.open())
        return nullptr;
    // libcups ignores the first of two encodings.
    const bool hasEncoding = body.contains("*LanguageEncoding:");
    file.write("*PPD-Adobe: \"4.3\"\n" + QByteArray(hasEncoding ? "" : "*LanguageEncoding: UTF-8\n") + body);
    file.flush();
    PrintError error;
    return PpdDocument::open(file.fileName(), &error);
}

Destination officePrinter(const QString &queue)
{
    Destination printer;
    printer.queue = queue;
    printer.info = u"Office on the second floor"_s;
    printer.deviceUri = u"socket://127.0.0.42"_s;
    printer.isStateKnown = true;
    return printer;
}

FakePanel::FakePanel(const QString &name, const QStringList &keywords, DialogSession *session)
    : m_name(name), m_keywords(keywords), m_session(session), m_view(new QWidget)
{
}

FakePanel::~FakePanel() = default;

void FakePanel::setCode(const QString &code)
{
    if (code.size() < 5)
        throw platform::Exception(platform::Exception::rangeName, u"too short"_s);
    const platform::KeyChange change(this, u"code"_s);
    m_code = code.left(5);
}

QVariant FakePanel::valueForKey(const QString &key)
{
    if (!m_keywords.contains(key))
        return platform::KeyValueObject::valueForKey(key);
    return m_values.value(key, m_session->ppd()->defaultChoice(key));
}

void FakePanel::setValueForKey(const QVariant &value, const QString &key)
{
    if (!m_keywords.contains(key)) {
        platform::KeyValueObject::setValueForKey(value, key);
        return;
    }
    {
        const platform::KeyChange change(this, key);
        m_values.insert(key, value.toString());
    }
    if (onSet)
        onSet(key, value.toString());
}

void FakePanel::announce(const QString &keyword, const QString &choice)
{
    auto &resolver = dynamic_cast<platform::ConstraintResolvingHost &>(*panelHost);
    resolver.willChangePPDOptionKeyValuePpdChoice(keyword, choice);
}

QMap<QString, QString> FakePanel::summaryInfo()
{
    return {{m_name, m_session->ppd()->markedChoice(m_keywords.value(0))}};
}

bool FakePanel::restoreValuesAndReturnError(QString *)
{
    ++restored;
    if (onRestore)
        onRestore();
    for (const QString &key : m_keywords)
        setValueForKey(m_session->ppd()->markedChoice(key), key);
    return true;
}

bool FakePanel::saveValuesAndReturnError(QString *)
{
    ++saved;
    for (const QString &key : m_keywords) {
        const QString choice = valueForKey(key).toString();
        announce(key, choice);
        m_session->ppd()->mark(key, choice);
    }
    return true;
}

bool FakePrintSystem::refuses(PrintError *error) const
{
    if (serverError)
        *error = serverError;
    return static_cast<bool>(serverError);
}

void adoptPanels(DialogSession *session, platform::PrintDialogPanels panels)
{
    session->loadPanels([&](platform::PrintDialogHost *host) {
        for (const auto &panel : panels) {
            if (auto *fake = dynamic_cast<FakePanel *>(panel.get()))
                fake->panelHost = host;
        }
        return std::move(panels);
    });
}

std::optional<QList<Destination>> FakePrintSystem::destinations(PrintError *error)
{
    return refuses(error) ? std::nullopt : std::optional(printers);
}

std::optional<Destination> FakePrintSystem::destination(const QString &name, PrintError *error)
{
    if (refuses(error))
        return std::nullopt;
    for (const Destination &printer : printers) {
        if (printer.name() == name || (name.isEmpty() && printer.isDefault))
            return printer;
    }
    *error = {PrintError::Kind::NoSuchPrinter, u"no such printer"_s};
    return std::nullopt;
}

std::unique_ptr<PpdDocument> FakePrintSystem::ppd(const Destination &destination, PrintError *error)
{
    if (refuses(error) || !ppds.contains(destination.queue))
        return nullptr;
    auto document = openPpd(ppds.value(destination.queue));
    if (!document)
        *error = {PrintError::Kind::BrokenPpd, u"broken PPD"_s};
    return document;
}

Submission FakePrintSystem::submit(const JobRequest &request, const SubmissionWatch &)
{
    Submission submission;
    if (refuses(&submission.error))
        return submission;
    submitted.append(request);
    submission.outcome = outcome;
    submission.job.id = static_cast<int>(submitted.size());
    submission.job.status = status;
    return submission;
}

QString sentValue(const QList<JobOption> &options, const QString &name)
{
    for (const JobOption &option : options) {
        if (option.name == name && option.kind != JobOption::Kind::Shown)
            return option.value;
    }
    return {};
}
