#include "platform/zip/ZipFont.h"

#include <memory>
#include <zip.h>

namespace pixmosa {
namespace {

constexpr zip_uint64_t kLargestFont = 64 << 20;

}  // namespace

std::optional<std::string> SinComprimir(std::string_view bytes) {
  if (!bytes.starts_with("PK\x03\x04")) return std::string(bytes);
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
  if (!source) return std::nullopt;
  const std::unique_ptr<zip_t, decltype(&zip_discard)> archive(
      zip_open_from_source(source, ZIP_RDONLY, &error), zip_discard);
  if (!archive) {
    zip_source_free(source);
    return std::nullopt;
  }
  zip_stat_t about;
  if (zip_stat_index(archive.get(), 0, 0, &about) != 0 || about.size > kLargestFont) return std::nullopt;
  const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file(zip_fopen_index(archive.get(), 0, 0),
                                                                zip_fclose);
  if (!file) return std::nullopt;
  std::string content(about.size, '\0');
  const zip_int64_t got = zip_fread(file.get(), content.data(), about.size);
  if (got != static_cast<zip_int64_t>(about.size)) return std::nullopt;
  return content;
}

}  // namespace pixmosa
