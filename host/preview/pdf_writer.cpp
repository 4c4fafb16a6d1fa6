// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/pdf_writer.h"

#include "host/printing/file_name.h"
#include "host/printing/new_file.h"

#include <cerrno>

#include <sys/stat.h>

namespace host {

namespace {

const QString joiner = QStringLiteral("qpdf");

} // namespace

PrintError replaceFile(const QString &path, const SharedFile &content)
{
    const auto problem = [&](const QString &reason) -> PrintError {
        return {PrintError::Kind::Other,
                PdfWriter::tr("“%1” cannot be written: %2.").arg(readableFileName(path), reason)};
    };
    const QByteArray target = fileNameToBytes(path);
    struct stat facts = {};
    const bool isThere = lstat(target.constData(), &facts) == 0;
    if (isThere && !S_ISREG(facts.st_mode))
        return problem(S_ISLNK(facts.st_mode) ? PdfWriter::tr("it is a link to another file")
                                              : PdfWriter::tr("it is not a file"));
    NewFile file(target, 0666, isThere ? &facts : nullptr);
    if (file.write(FileView(content).bytes()) && file.takePlace())
        return {};
    return problem(qt_error_string(errno));
}

PdfWriter::PdfWriter(const PageTools &tools, QObject *parent)
    : QObject(parent), m_tools(tools), m_maker(tools, nullptr), m_joiner(nullptr)
{
    m_maker.setLimits(PageMaker::generousLimits());
    m_joiner.setLimits(PageMaker::generousLimits());
    connect(&m_maker, &PageMaker::made, this, &PdfWriter::made);
    connect(&m_maker, &PageMaker::failed, this, [this](const QString &reason, PageMaker::Fault fault) {
        if (fault == PageMaker::Fault::Selection) // the settings may select pages of another document
            proceed(reason);
        else
            fail(reason);
    });
    connect(&m_joiner, &LimitedProcess::ended, this, [this](const SharedFile &joined) {
        if (joined)
            Q_EMIT ended(joined, {});
        else
            fail(tr("%1 cannot read the document").arg(joiner));
    });
}

void PdfWriter::write(const QList<Document> &documents, const PageSettings &settings)
{
    m_documents = documents;
    m_settings = settings;
    if (m_tools.path(QStringLiteral("pdftopdf")).isEmpty())
        fail(tr("%1 is not installed").arg(QStringLiteral("pdftopdf")));
    else
        makeNext();
}

void PdfWriter::makeNext()
{
    const SharedFile file = openFile(m_documents.first().path);
    if (file)
        m_maker.make(m_documents.first(), file, m_settings);
    else
        fail(QString::fromLocal8Bit(std::strerror(errno)));
}

void PdfWriter::made(const SharedFile &pdf, bool)
{
    m_parts.append(pdf);
    proceed({});
}

void PdfWriter::proceed(const QString &problem)
{
    if (m_documents.size() == 1 && m_parts.isEmpty()) {
        fail(problem);
        return;
    }
    m_documents.removeFirst();
    if (!m_documents.isEmpty())
        makeNext();
    else
        join();
}

void PdfWriter::join()
{
    const QString path = m_tools.path(joiner);
    if (path.isEmpty()) {
        fail(tr("%1 is not installed").arg(joiner));
        return;
    }
    // Sheets are rotated for the printer; a file shows them in reading orientation.
    QStringList arguments = {QStringLiteral("--empty"), QStringLiteral("--warning-exit-0"),
                             QStringLiteral("--pages")};
    for (const SharedFile &part : std::as_const(m_parts))
        arguments.append(LimitedProcess::pathFor(part));
    arguments += {QStringLiteral("--"), QStringLiteral("--rotate=0"), QStringLiteral("-")};
    m_joiner.start({path, arguments, m_parts.first(), m_parts});
}

void PdfWriter::fail(const QString &reason)
{
    const QString name = m_documents.isEmpty() ? QString() : m_documents.first().name;
    Q_EMIT ended(nullptr, {PrintError::Kind::Other,
                           name.isEmpty() ? tr("The PDF file cannot be created: %1.").arg(reason)
                                          : tr("“%1” cannot be converted to PDF: %2.").arg(name, reason)});
}

} // namespace host
