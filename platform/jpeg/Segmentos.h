// The segments of a JPEG file, walked as decoders do: fill bytes and stray bytes between them are passed
// over.
#pragma once

#include <string_view>

namespace pixmosa {

bool EsJpeg(std::string_view bytes);

// True where the picture's end mark follows its data, that is, the file was not cut short. An end mark inside
// a segment (a thumbnail's) does not count.
bool JpegLlegaAlFinal(std::string_view bytes);

// A decoder goes over the whole picture once a scan: a small file of many takes minutes. Common progressive
// ones have ten.
constexpr int kMasPasadas = 100;
int JpegPasadas(std::string_view bytes);

// A photograph whose EXIF data may turn it; true also where only something like that is seen.
bool JpegQuizaGirado(std::string_view bytes);

}  // namespace pixmosa
