#include "reports/WriteFailure.h"

#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

QString Reason(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return u"磁盘已满"_s;
    case EACCES:
    case EPERM:
    case EROFS:
        return u"文件或文件夹不允许写入"_s;
    case ENOENT:
    case ENOTDIR:
        return u"文件夹不存在"_s;
    case EISDIR:
        return u"同名的文件夹已存在"_s;
    case ENAMETOOLONG:
        return u"文件名太长"_s;
    case EBUSY:
    case ETXTBSY:
        return u"文件正被别的程序使用"_s;
    case 0:
        return u"文件没有写完整"_s;
    default:
        return u"文件无法写入（%1）"_s.arg(QString::fromLocal8Bit(std::strerror(error)));
    }
}

} // namespace

WriteFailure::WriteFailure(int error) : RunTimeError(Reason(error) + u"，导出停止！"_s)
{}
