#include "platform/zip/Descomprimir.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <zip.h>

namespace pixmosa {
namespace {

constexpr zip_int64_t kMostEntries = 1000;
constexpr std::size_t kMostBytes = 64 << 20, kChunk = 65536;

using Archive = std::unique_ptr<zip_t, decltype(&zip_discard)>;

Archive Open(std::string_view zip) {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_buffer_create(zip.data(), zip.size(), 0, &error);
  Archive archive(source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr, zip_discard);
  if (!archive && source) zip_source_free(source);
  zip_error_fini(&error);
  if (!archive) throw ErrorDelPrograma("el archivo zip está dañado");
  return archive;
}

std::string Reason(int error) {
  switch (error) {
    case ZIP_ER_CRC:
      return "está dañado: la suma de comprobación no coincide";
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
      return "está cifrado";
    case ZIP_ER_COMPNOTSUPP:
      return "está comprimido de una forma que no se conoce";
    default:
      return "está dañado";
  }
}

// Reads an entry to its end, where the checksum is looked at. Takes what it unpacks off `left`, whatever the
// archive says about the size.
void Read(zip_t* archive, zip_uint64_t index, ArchivoComprimido& entry, std::size_t& left) {
  const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file(zip_fopen_index(archive, index, 0),
                                                                zip_fclose);
  if (!file) {
    entry.fallo = Reason(zip_error_code_zip(zip_get_error(archive)));
    return;
  }
  for (;;) {
    const std::size_t have = entry.bytes.size(), most = std::min(kChunk, left + 1);
    entry.bytes.resize(have + most);
    const zip_int64_t got = zip_fread(file.get(), entry.bytes.data() + have, most);
    entry.bytes.resize(have + static_cast<std::size_t>(std::max<zip_int64_t>(got, 0)));
    if (got == 0) return;
    if (got < 0) entry.fallo = Reason(zip_error_code_zip(zip_file_get_error(file.get())));
    if (got > static_cast<zip_int64_t>(left)) entry.fallo = "es demasiado grande";
    if (!entry.fallo.empty()) break;
    left -= static_cast<std::size_t>(got);
  }
  left -= std::min(left, entry.bytes.size());
  entry.bytes.clear();
}

}  // namespace

std::vector<ArchivoComprimido> DescomprimirZip(std::string_view zip) {
  const Archive archive = Open(zip);
  const zip_int64_t entries = zip_get_num_entries(archive.get(), 0);
  if (entries > kMostEntries)
    throw ErrorDelPrograma("el archivo zip contiene más de " + std::to_string(kMostEntries) + " archivos");
  std::vector<ArchivoComprimido> files;
  std::size_t left = kMostBytes;
  for (zip_uint64_t i = 0; i < static_cast<zip_uint64_t>(entries); ++i) {
    const char* name = zip_get_name(archive.get(), i, 0);
    ArchivoComprimido entry{name ? name : "", {}, {}};
    if (entry.nombre.ends_with('/')) continue;
    Read(archive.get(), i, entry, left);
    files.push_back(std::move(entry));
  }
  return files;
}

}  // namespace pixmosa
