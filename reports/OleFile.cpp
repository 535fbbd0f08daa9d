#include "reports/OleFile.h"

#include "reports/WriteFailure.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-outfile.h>
#include <gsf/gsf-output-stdio.h>
#include <gsf/gsf-output.h>
#include <gsf/gsf-utils.h>

namespace {

struct Unreference {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Object>
using Reference = std::unique_ptr<Object, Unreference>;

// The class by which a spreadsheet program knows a workbook of its own.
constexpr guint8 WorkbookClass[16] = {0x20, 0x08, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00,
                                      0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46};

} // namespace

struct OleFile::Parts {
    // Destroyed from the last to the first: the stream knows its container, which knows the file.
    Reference<GsfOutput> file;
    Reference<GsfOutfile> container;
    Reference<GsfOutput> stream;
};

OleFile::OleFile(const QString& path, const char* stream) : m_parts(std::make_unique<Parts>())
{
    gsf_init();
    std::FILE* file = std::fopen(QFile::encodeName(path).constData(), "wb");
    if (!file)
        throw WriteFailure(errno);
    m_parts->file.reset(gsf_output_stdio_new_FILE("workbook", file, FALSE));
    m_parts->container.reset(gsf_outfile_msole_new(m_parts->file.get()));
    gsf_outfile_msole_set_class_id(GSF_OUTFILE_MSOLE(m_parts->container.get()), WorkbookClass);
    m_parts->stream.reset(gsf_outfile_new_child(m_parts->container.get(), stream, FALSE));
}

OleFile::~OleFile()
{
    // A container that was given up complains when it is not closed.
    for (GsfOutput* part : {m_parts->stream.get(), GSF_OUTPUT(m_parts->container.get()), m_parts->file.get()})
        if (!gsf_output_is_closed(part))
            gsf_output_close(part);
}

void OleFile::Write(const QByteArray& bytes)
{
    errno = 0;
    if (!gsf_output_write(m_parts->stream.get(), static_cast<std::size_t>(bytes.size()),
                          reinterpret_cast<const guint8*>(bytes.constData())))
        throw WriteFailure(errno);
}

void OleFile::Close()
{
    // A container closes its file with it.
    for (GsfOutput* part :
         {m_parts->stream.get(), GSF_OUTPUT(m_parts->container.get()), m_parts->file.get()}) {
        errno = 0;
        if (!gsf_output_is_closed(part) && !gsf_output_close(part))
            throw WriteFailure(errno);
    }
}
