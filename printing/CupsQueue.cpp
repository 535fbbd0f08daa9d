#include "printing/CupsQueue.h"

#include <QSizeF>

#include <array>
#include <cmath>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// How long one question to the print server may take, in seconds. A server on the machine or in the
/// house answers in milliseconds; a till that waits longer looks dead.
constexpr int AnswerLimit = 2;

/// Without this the library asks for a password on the terminal, which nobody sees.
const char* NoPassword(const char* /*prompt*/, http_t* /*connection*/, const char* /*method*/,
                       const char* /*resource*/, void* /*data*/)
{
    return nullptr;
}

int GiveUp(http_t* /*connection*/, void* /*data*/)
{
    return 0;
}

const QString SilentServer = u"打印服务没有应答"_s;

/// The last refusal in words.
QString LastRefusal()
{
    switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
        return u"打印队列暂不接收单据"_s;
    case IPP_STATUS_ERROR_NOT_FOUND:
        return u"打印队列已不存在"_s;
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
        return u"打印队列不许本用户打印"_s;
    case IPP_STATUS_OK: // there was no answer to tell one
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
    case IPP_STATUS_ERROR_INTERNAL:
    case IPP_STATUS_ERROR_TIMEOUT:
        return SilentServer;
    default:
        return QString::fromUtf8(cupsLastErrorString()).remove(u'\'').remove(u'"');
    }
}

/// The sheet that a paper of the print system is; null for a range of free sizes, which is no paper.
QPageSize Sheet(const char* paper)
{
    const QByteArray name(paper);
    if (name.startsWith("custom_m"))
        return {};
    const pwg_media_t* known = pwgMediaForPWG(paper);
    if (!known)
        known = pwgMediaForLegacy(paper);
    if (!known)
        return {};
    const QSizeF millimetres(known->width / 100.0, known->length / 100.0);
    return QPageSize(millimetres, QPageSize::Millimeter);
}

} // namespace

CupsQueue::CupsQueue()
{
    cupsSetPasswordCB2(NoPassword, nullptr);
    m_connection.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                    AnswerLimit * 1000, nullptr));
    if (!m_connection)
        return;
    httpSetTimeout(m_connection.get(), AnswerLimit, GiveUp, nullptr);
    m_name = cupsGetDefault2(m_connection.get());
    if (!m_name.isEmpty())
        m_state = State::Known;
    else if (cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND)
        m_state = State::Silent;
}

CupsQueue::Message CupsQueue::Request(ipp_op_t operation) const
{
    std::array<char, HTTP_MAX_URI> address{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, address.data(), address.size(), "ipp", nullptr, "localhost", 0,
                     "/printers/%s", m_name.constData());
    Message request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, address.data());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

QList<QPageSize> CupsQueue::Papers(const char* attribute)
{
    QList<QPageSize> papers;
    if (m_state != State::Known)
        return papers;
    Message request = Request(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 attribute);
    const Message answer(cupsDoRequest(m_connection.get(), request.release(), "/"));
    ipp_attribute_t* names = ippFindAttribute(answer.get(), attribute, IPP_TAG_ZERO);
    for (int i = 0; i < ippGetCount(names); ++i) {
        const char* name = ippGetString(names, i, nullptr);
        const QPageSize paper = name ? Sheet(name) : QPageSize();
        if (paper.isValid())
            papers << paper;
    }
    return papers;
}

QString CupsQueue::Refusal(const QString& title, const QPageSize& paper, bool isLandscape,
                           const QByteArray& document)
{
    if (m_state != State::Known)
        return SilentServer;
    const QSizeF size = paper.size(QPageSize::Millimeter);
    const pwg_media_t* media = pwgMediaForSize(static_cast<int>(std::lround(size.width() * 100)),
                                               static_cast<int>(std::lround(size.height() * 100)));
    const Message request = Request(IPP_OP_PRINT_JOB);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 title.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 CUPS_FORMAT_PDF);
    ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "media", nullptr, media->pwg);
    ippAddInteger(request.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "orientation-requested",
                  isLandscape ? IPP_ORIENT_LANDSCAPE : IPP_ORIENT_PORTRAIT);

    http_t* connection = m_connection.get();
    const std::string resource = "/printers/" + m_name.toStdString();
    const auto length = static_cast<size_t>(document.size());
    if (cupsSendRequest(connection, request.get(), resource.c_str(), ippLength(request.get()) + length) ==
        HTTP_STATUS_CONTINUE)
        cupsWriteRequestData(connection, document.constData(), length);
    const Message answer(cupsGetResponse(connection, resource.c_str()));
    const bool isTaken = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER) != nullptr &&
                         ippGetStatusCode(answer.get()) < IPP_STATUS_REDIRECTION_OTHER_SITE;
    return isTaken ? QString() : LastRefusal();
}
