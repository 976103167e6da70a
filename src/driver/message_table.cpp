// Rows of the message catalogue and of the system-error texts.
#include "driver/message_table.h"

#include <cerrno>
#include <string_view>

namespace quillon {

constexpr MessageRow MessageTableMonitorTool[kMessageRows] = {
    {0, "IN", " "},
    {1, "IY", "[$1s]"},
    {2, "IY", "[$1s][$2s]"},
    {3, "IY", "[$1s][$2s][$3s]"},
    {4, "IY", "[$1s][$2s][$3s][$4s]"},
    {5, "IY", "[$1s][$2s][$3s][$4s][$5s]"},
    {6, "IY", "[$1s][$2s][$3s][$4s][$5s][$6s]"},
    {7, "IY", "[$1s][$2s][$3s][$4s][$5s][$6s][$7s]"},
    {8, "IY", "[$1s][$2s][$3s][$4s][$5s][$6s][$7s][$8s]"},
    {9, "IY", "[$1s][$2s][$3s][$4s][$5s][$6s][$7s][$8s][$9s]"},
    {1001, "EY", "File I/O error. \n  File      : [$1s]\n  Operation : [$2s]\n  Result    : [$0s] ([$0d])."},
    {1002, "EY", "System call error.  Function : [$1s]   Result : [$0s] ([$0d])."},
    {1003, "EY", "Directory open error.  Directory : [$1s]   Result : [$0s] ([$0d])."},
    {1004, "EY", "File lock error.  File : [$1s]   Result : [$0s] ([$0d])."},
    {1005, "EY", "File delete error.  File : [$1s]   Result : [$0s] ([$0d])."},
    {1006, "EY", "File rename error. \n  From : [$1s]\n  To   : [$2s]  [$0s] ([$0d])"},
    {1007, "EY", "File close error.  File : [$1s]   Result : [$0s] ([$0d])."},
    {1009, "EY", "Time of day is not available.  [$0s] ([$0d])"},
    {1010, "EY", "No more memory is available.  [$0s] ([$0d])"},
    {1021, "EY", "Thread can not be created.  [$0s] ([$0d])"},
    {1022, "EY", "Thread can not be joined.  [$0s] ([$0d])"},
    {1023, "EY", "Mutex error.  Function : [$1s]   Result : [$0s] ([$0d])."},
    {1024, "EY", "Semaphore error.  Function : [$1s]   Result : [$0s] ([$0d])."},
    {1025, "EY", "Shared memory error.  Function : [$1s]   Size : [$2u]   Result : [$0s] ([$0d])."},
    {1026, "EY", "Signal handler can not be set.  Signal : [$1d]   Result : [$0s] ([$0d])."},
    {1101, "EY", "Command can not be executed.  Command : [$1s]   Result : [$0s] ([$0d])."},
    {2001, "EY", "Input file is not specified."},
    {2002, "WY", "Input file is empty.  (File [$1s])"},
    {2003, "EY", "Too long record in input file.  (File [$1s], Line [$2d])"},
    {2004, "EY", "Unexpected end of input file.  (File [$1s], Line [$2d])"},
    {2005, "EY", "Invalid header in input file.  (File [$1s], Line [$2d])"},
    {2006, "EY", "Invalid record in input file.  (File [$1s], Line [$2d], Data \"[$3s]\")"},
    {2007, "EY", "Invalid hexadecimal value in input file.  (File [$1s], Line [$2d], Data \"[$3s]\")"},
    {2008, "EY", "Invalid decimal value in input file.  (File [$1s], Line [$2d], Data \"[$3s]\")"},
    {2009, "WY", "Duplicate record in input file.  (File [$1s], Line [$2d], Data \"[$3s]\")"},
    {2010, "EY", "Required parameter \"[$1s]\" is not specified"},
    {2011, "WY", "Invalid parameter \"[$1s]\""},
    {2012, "WY", "Value of parameter \"[$1s]\" is not specified"},
    {2013, "WY", "Invalid value of parameter \"[$1s]\" : \"[$2s]\""},
    {2014, "WY", "Value of parameter \"[$1s]\" is out of range : [$2d]  (Min [$3d], Max [$4d])"},
    {2015, "WY", "Parameter \"[$1s]\" is specified more than once"},
    {2016, "WY", "Parameter \"[$1s]\" can not be specified with parameter \"[$2s]\""},
    {2017, "WY", "Parameter \"[$1s]\" is ignored"},
    {2018, "WY", "Too many parameters.  (Max [$1d])"},
    {2019, "EY", "Too long file name.  (File [$1s], Max [$2d])"},
    {2020, "EY", "Input file and output file are the same.  (File [$1s])"},
    {2101, "WY", "Invalid value of environment variable \"[$1s]\" : \"[$2s]\""},
    {2102, "WY", "Unknown locale \"[$1s]\".  CCSID [$2d] is used."},
    {2103, "WY", "Unsupported CCSID [$1d]"},
    {2104, "EY", "Character conversion is not available.  (From CCSID [$1d], To CCSID [$2d])"},
    {2105, "WY", "Invalid character in data.  (CCSID [$1d], Offset [$2d])"},
    {3001, "EY", "ZK API error.  Function : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3002, "WY", "ZK API warning.  Function : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3003, "EY", "ZK API error.  Function : [$1s]   Object : [$2s]   CompCode : [$3d]   Reason : [$4d]"},
    {3005, "EY",
     "Connection to queue manager failed.  Queue manager : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3006, "EY",
     "Client connection failed.  Queue manager : [$1s]   Channel : [$2s]   CompCode : [$3d]   Reason : "
     "[$4d]"},
    {3007, "EY",
     "Disconnection from queue manager failed.  Queue manager : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3008, "EY", "Object open failed.  Object : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3009, "EY", "Object close failed.  Object : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3010, "EY", "Message put failed.  Object : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3011, "EY", "Message get failed.  Object : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3012, "EY", "Message browse failed.  Object : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3013, "EY", "Inquiry failed.  Object : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3014, "EY", "Attribute set failed.  Object : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3015, "EY", "Subscription failed.  Topic : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3016, "EY", "Subscription request failed.  Topic : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3017, "EY", "Callback registration failed.  Object : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3018, "EY", "Callback control failed.  Queue manager : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3019, "EY", "Status inquiry failed.  Queue manager : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3020, "EY", "Begin of unit of work failed.  Queue manager : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3021, "EY", "Commit failed.  Queue manager : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3022, "EY", "Backout failed.  Queue manager : [$1s]   CompCode : [$2d]   Reason : [$3d]"},
    {3023, "WY", "Unit of work was backed out.  Queue manager : [$1s]"},
    {3024, "WY", "No message is available.  Object : [$1s]"},
    {3025, "WY", "Message was truncated.  Object : [$1s]   Length : [$2d]   Buffer : [$3d]"},
    {3026, "WY", "Message was not converted.  Object : [$1s]   CCSID : [$2d]   Encoding : [$3x]"},
    {3027, "EY", "Queue manager is not available.  Queue manager : [$1s]"},
    {3028, "EY", "Queue manager is stopping.  Queue manager : [$1s]"},
    {3029, "EY", "Connection to queue manager was broken.  Queue manager : [$1s]"},
    {3030, "EY", "Object does not exist.  Object : [$1s]"},
    {3031, "EY", "Object is in use.  Object : [$1s]"},
    {3032, "EY", "Not authorized.  User : [$1s]   Object : [$2s]"},
    {3033, "EY", "Queue is full.  Object : [$1s]   Depth : [$2d]"},
    {3034, "WY", "Put is inhibited.  Object : [$1s]"},
    {3035, "WY", "Get is inhibited.  Object : [$1s]"},
    {3036, "EY", "Invalid object handle : [$1x]"},
    {3040, "EY", "Command server does not reply.  Queue manager : [$1s]   Queue : [$2s]"},
    {3041, "EY", "PCF command failed.  Command : [$1d]   CompCode : [$2d]   Reason : [$3d]"},
    {3042, "WY", "PCF command warning.  Command : [$1d]   CompCode : [$2d]   Reason : [$3d]"},
    {3043, "EY", "Invalid PCF header.  Type : [$1d]   Length : [$2d]   Version : [$3d]"},
    {3044, "EY", "Invalid PCF parameter.  Parameter : [$1d]   Type : [$2d]   Length : [$3d]"},
    {3045, "EY", "Unexpected PCF reply.  Command : [$1d]   Sequence number : [$2d]"},
    {3046, "EY", "Invalid dead letter header.  Queue : [$1s]   Length : [$2d]"},
    {3047, "EY", "Invalid transmission header.  Queue : [$1s]   Length : [$2d]"},
    {3048, "EY", "Invalid trigger message.  Queue : [$1s]   Length : [$2d]"},
    {3049, "EY", "Invalid rules and formatting header.  Version : [$1d]   Length : [$2d]"},
    {3050, "WY", "Unknown message format \"[$1s]\""},
    {3051, "WY", "Unknown encoding : [$1x]"},
    {3052, "WY", "Unknown CCSID : [$1d]"},
    {3100, "EY", "Unknown API structure : [$1s] version [$2u]"},
    {3101, "EY", "Unknown API attribute : [$1s] value [$2x]"},
    {3102, "EY", "Unknown API function : [$1s]"},
    {3103, "EY", "Invalid API structure : [$1s] length [$2u]"},
    {4001, "IY", "Process start. [$t]\n"},
    {4002, "IY", "Process suspended. [$t]"},
    {4003, "IY", "Process resumed. [$t]"},
    {4004, "WY", "Process canceled. [$t]\n"},
    {4005, "IY", "Process end. [$t]\n"},
    {4006, "IY", "Process id  : [$1d]"},
    {4007, "IY", "Start time  : [$t]"},
    {4008, "IY", "Lines read  : [$1u]"},
    {4009, "IY", "Lines written : [$1u]"},
    {4010, "IY", "Bytes written : [$1u]"},
    {4011, "IY", "API calls   : [$1u]"},
    {4012, "IY", "Structures  : [$1u]"},
    {4013, "IY", "Errors      : [$1u]   Warnings : [$2u]"},
    {4014, "IY", "Directory   : [$1s]"},
    {4015, "IY", "Locale      : [$1s]   CCSID : [$2d]"},
    {4016, "IY", "Output file : [$1s]"},
    {4017, "WY",
     "Current program is running on [$1s].  Input trace data is from [$2s].  Reformatted integer values "
     "might be incorrect."},
    {4018, "EY",
     "Current program is running in [$1s]-bit mode.  Input trace data is in [$2s]-bit mode.  Process "
     "terminated."},
    {4019, "IY", "Max rec len : [$1d]"},
    {4020, "IY", "Input file  : [$1s]"},
    {4021, "IY", "Log file    : [$1s]"},
    {4022, "IY", "Work file   : [$1s]"},
    {4023, "IY", "Queue manager : [$1s]"},
    {4024, "IY", "Queue       : [$1s]"},
    {4025, "IY", "Topic       : [$1s]"},
    {4026, "IY", "Channel     : [$1s]"},
    {4027, "IY", "Output file was closed.  Next output file : [$1s]"},
    {4028, "IY", "Output file was renamed.  From : [$1s]   To : [$2s]"},
    {4029, "IY", "Messages    : [$1u]   Bytes : [$2u]"},
    {5001, "EY", "Internal error. [$1s]"},
    {kEndOfMessages, "", ""},
};

// Error numbers that only long-gone devices and services return have no row; their text is empty.
constexpr SystemErrorRow MessageTable[kSystemErrorRows] = {
    {"NO_ERROR", 0},
    {"EPERM - Operation not permitted", EPERM},
    {"ENOENT - No such file or directory", ENOENT},
    {"ESRCH - No such process", ESRCH},
    {"EINTR - Interrupted system call", EINTR},
    {"EIO - Input/output error", EIO},
    {"ENXIO - No such device or address", ENXIO},
    {"E2BIG - Argument list too long", E2BIG},
    {"ENOEXEC - Exec format error", ENOEXEC},
    {"EBADF - Bad file descriptor", EBADF},
    {"ECHILD - No child processes", ECHILD},
    {"EAGAIN - Resource temporarily unavailable", EAGAIN},
    {"ENOMEM - Cannot allocate memory", ENOMEM},
    {"EACCES - Permission denied", EACCES},
    {"EFAULT - Bad address", EFAULT},
    {"ENOTBLK - Block device required", ENOTBLK},
    {"EBUSY - Device or resource busy", EBUSY},
    {"EEXIST - File exists", EEXIST},
    {"EXDEV - Invalid cross-device link", EXDEV},
    {"ENODEV - No such device", ENODEV},
    {"ENOTDIR - Not a directory", ENOTDIR},
    {"EISDIR - Is a directory", EISDIR},
    {"EINVAL - Invalid argument", EINVAL},
    {"ENFILE - Too many open files in system", ENFILE},
    {"EMFILE - Too many open files", EMFILE},
    {"ENOTTY - Inappropriate control operation for device", ENOTTY},
    {"ETXTBSY - Text file busy", ETXTBSY},
    {"EFBIG - File too large", EFBIG},
    {"ENOSPC - No space left on device", ENOSPC},
    {"ESPIPE - Illegal seek", ESPIPE},
    {"EROFS - Read-only file system", EROFS},
    {"EMLINK - Too many links", EMLINK},
    {"EPIPE - Broken pipe", EPIPE},
    {"EDOM - Argument out of domain of function", EDOM},
    {"ERANGE - Result out of range", ERANGE},
    {"EDEADLK - Resource deadlock avoided", EDEADLK},
    {"ENAMETOOLONG - File name too long", ENAMETOOLONG},
    {"ENOLCK - No locks available", ENOLCK},
    {"ENOSYS - Function not implemented", ENOSYS},
    {"ENOTEMPTY - Directory not empty", ENOTEMPTY},
    {"ELOOP - Too many levels of symbolic links", ELOOP},
    {"ENOMSG - No message of desired type", ENOMSG},
    {"EIDRM - Identifier removed", EIDRM},
    {"ECHRNG - Channel number out of range", ECHRNG},
    {"EL2NSYNC - Level 2 not synchronized", EL2NSYNC},
    {"EL3HLT - Level 3 halted", EL3HLT},
    {"EL3RST - Level 3 reset", EL3RST},
    {"ELNRNG - Link number out of range", ELNRNG},
    {"EUNATCH - Protocol driver not attached", EUNATCH},
    {"ENOCSI - No CSI structure available", ENOCSI},
    {"EL2HLT - Level 2 halted", EL2HLT},
    {"ENOSTR - Device not a stream", ENOSTR},
    {"ENODATA - No data available", ENODATA},
    {"ETIME - Timer expired", ETIME},
    {"ENOSR - Out of streams resources", ENOSR},
    {"EREMOTE - Object is remote", EREMOTE},
    {"ENOLINK - Link has been severed", ENOLINK},
    {"ECOMM - Communication error on send", ECOMM},
    {"EPROTO - Protocol error", EPROTO},
    {"EMULTIHOP - Multihop attempted", EMULTIHOP},
    {"EBADMSG - Bad message", EBADMSG},
    {"EOVERFLOW - value too large to be stored in data type", EOVERFLOW},
    {"EBADFD - File descriptor in bad state", EBADFD},
    {"ELIBACC - Cannot access a needed shared library", ELIBACC},
    {"ELIBBAD - Accessing a corrupted shared library", ELIBBAD},
    {"ELIBSCN - .lib section in a.out corrupted", ELIBSCN},
    {"ELIBMAX - Attempting to link in too many shared libraries", ELIBMAX},
    {"ELIBEXEC - Cannot exec a shared library directly", ELIBEXEC},
    {"EILSEQ - Invalid or incomplete multibyte or wide character", EILSEQ},
    {"ERESTART - Interrupted system call should be restarted", ERESTART},
    {"ESTRPIPE - Streams pipe error", ESTRPIPE},
    {"EUSERS - Too many users", EUSERS},
    {"ENOTSOCK - Socket operation on non-socket", ENOTSOCK},
    {"EDESTADDRREQ - Destination address required", EDESTADDRREQ},
    {"EMSGSIZE - Message too long", EMSGSIZE},
    {"EPROTOTYPE - Protocol wrong type for socket", EPROTOTYPE},
    {"ENOPROTOOPT - Protocol not available", ENOPROTOOPT},
    {"EPROTONOSUPPORT - Protocol not supported", EPROTONOSUPPORT},
    {"ESOCKTNOSUPPORT - Socket type not supported", ESOCKTNOSUPPORT},
    {"EOPNOTSUPP - Operation not supported on socket", EOPNOTSUPP},
    {"EPFNOSUPPORT - Protocol family not supported", EPFNOSUPPORT},
    {"EAFNOSUPPORT - Address family not supported by protocol family", EAFNOSUPPORT},
    {"EADDRINUSE - Address already in use", EADDRINUSE},
    {"EADDRNOTAVAIL - Cannot assign requested address", EADDRNOTAVAIL},
    {"ENETDOWN - Network is down", ENETDOWN},
    {"ENETUNREACH - Network is unreachable", ENETUNREACH},
    {"ENETRESET - Network dropped connection on reset", ENETRESET},
    {"ECONNABORTED - Software caused connection abort", ECONNABORTED},
    {"ECONNRESET - Connection reset by peer", ECONNRESET},
    {"ENOBUFS - No buffer space available", ENOBUFS},
    {"EISCONN - Socket is already connected", EISCONN},
    {"ENOTCONN - Socket is not connected", ENOTCONN},
    {"ESHUTDOWN - Cannot send after socket shutdown", ESHUTDOWN},
    {"ETOOMANYREFS - Too many references: cannot splice", ETOOMANYREFS},
    {"ETIMEDOUT - Connection timed out", ETIMEDOUT},
    {"ECONNREFUSED - Connection refused", ECONNREFUSED},
    {"EHOSTDOWN - Host is down", EHOSTDOWN},
    {"EHOSTUNREACH - No route to host", EHOSTUNREACH},
    {"EALREADY - Operation already in progress", EALREADY},
    {"EINPROGRESS - Operation now in progress", EINPROGRESS},
    {"ESTALE - Stale file handle", ESTALE},
    {"EUCLEAN - Structure needs cleaning", EUCLEAN},
    {"EREMOTEIO - Remote I/O error", EREMOTEIO},
    {"EDQUOT - Disk quota exceeded", EDQUOT},
    {"ENOMEDIUM - No medium found", ENOMEDIUM},
    {"EMEDIUMTYPE - Wrong medium type", EMEDIUMTYPE},
    {"ECANCELED - Operation canceled", ECANCELED},
    {"ENOKEY - Required key not available", ENOKEY},
    {"EKEYEXPIRED - Key has expired", EKEYEXPIRED},
    {"", kEndOfMessages},
};

namespace {

/// Every code once and ascending, with a text and two flag letters, up to the end row.
consteval bool MessagesAreComplete() {
  for (std::size_t index = 0; index + 1 < kMessageRows; ++index) {
    const MessageRow& row = MessageTableMonitorTool[index];
    if (row.code >= MessageTableMonitorTool[index + 1].code || *row.text == '\0') return false;
    if (std::string_view("IWE").find(row.flags[0]) == std::string_view::npos) return false;
    if (row.flags[1] != 'Y' && row.flags[1] != 'N') return false;
  }
  const MessageRow& last = MessageTableMonitorTool[kMessageRows - 1];
  return last.code == kEndOfMessages && *last.text == '\0';
}

/// The numbered placeholders of a text are 1, 2, 3 and so on, each of a known kind; PutMessage would leave
/// those after a gap, and repeated ones, as they stand.
consteval bool ArgumentsAreContiguous(std::string_view text) {
  char expected = '1';
  for (std::size_t at = text.find("[$"); at != std::string_view::npos; at = text.find("[$", at + 1)) {
    const std::string_view placeholder = text.substr(at + 2, 3);
    if (placeholder.substr(0, 2) == "t]" || placeholder == "0s]" || placeholder == "0d]") continue;
    if (placeholder.size() != 3 || placeholder[0] != expected || placeholder[2] != ']') return false;
    if (std::string_view("sdux").find(placeholder[1]) == std::string_view::npos) return false;
    ++expected;
  }
  return true;
}

consteval bool AllArgumentsAreContiguous() {
  for (const MessageRow& row : MessageTableMonitorTool)
    if (!ArgumentsAreContiguous(row.text)) return false;
  return true;
}

/// The row of `code` has these flags and, in the order of its text, these placeholders. What the callers of
/// PutMessage pass depends on them.
consteval bool HasMessage(std::int32_t code, std::string_view flags, std::string_view placeholders) {
  for (const MessageRow& row : MessageTableMonitorTool) {
    if (row.code != code) continue;
    if (flags != row.flags) return false;
    const std::string_view text = row.text;
    for (std::size_t at = text.find("[$"); at != std::string_view::npos; at = text.find("[$", at + 1)) {
      const std::string_view placeholder = text.substr(at, text.find(']', at) - at + 1);
      if (!placeholders.starts_with(placeholder)) return false;
      placeholders.remove_prefix(placeholder.size());
    }
    return placeholders.empty();
  }
  return false;
}

/// Every number from 0 to 127 at most once and ascending, with a text, up to the end row.
consteval bool SystemErrorsAreComplete() {
  for (std::size_t index = 0; index + 1 < kSystemErrorRows; ++index) {
    const SystemErrorRow& row = MessageTable[index];
    if (row.number >= MessageTable[index + 1].number) return false;
    const bool described = std::string_view(row.text).find(" - ") != std::string_view::npos;
    if (described == (row.number == 0)) return false;
  }
  const SystemErrorRow& last = MessageTable[kSystemErrorRows - 1];
  return MessageTable[0].number == 0 && MessageTable[kSystemErrorRows - 2].number == 127 &&
         last.number == kEndOfMessages && *last.text == '\0';
}

// A row that is missing leaves its place to an empty row at the end, a row too many does not fit.
static_assert(MessagesAreComplete());
static_assert(AllArgumentsAreContiguous());
static_assert(SystemErrorsAreComplete());

static_assert(HasMessage(0, "IN", ""));
static_assert(HasMessage(1, "IY", "[$1s]"));
static_assert(HasMessage(1001, "EY", "[$1s][$2s][$0s][$0d]"));
static_assert(HasMessage(1002, "EY", "[$1s][$0s][$0d]"));
static_assert(HasMessage(1006, "EY", "[$1s][$2s][$0s][$0d]"));
static_assert(HasMessage(1010, "EY", "[$0s][$0d]"));
static_assert(HasMessage(2006, "EY", "[$1s][$2d][$3s]"));
static_assert(HasMessage(2011, "WY", "[$1s]"));
static_assert(HasMessage(3100, "EY", "[$1s][$2u]"));
static_assert(HasMessage(3101, "EY", "[$1s][$2x]"));
static_assert(HasMessage(4005, "IY", "[$t]"));
static_assert(HasMessage(4015, "IY", "[$1s][$2d]"));
static_assert(HasMessage(4016, "IY", "[$1s]"));
static_assert(HasMessage(4017, "WY", "[$1s][$2s]"));
static_assert(HasMessage(4018, "EY", "[$1s][$2s]"));
static_assert(HasMessage(4019, "IY", "[$1d]"));
static_assert(HasMessage(4020, "IY", "[$1s]"));

}  // namespace
}  // namespace quillon
