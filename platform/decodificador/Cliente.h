// Runs the decoding process, which reads the kinds of picture whose readers are not to be trusted. Whatever
// happens in it - a fall, an endless loop, a flood of memory - ends in an answer here.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string_view>

#include "platform/decodificador/Respuesta.h"

namespace pixmosa {

// The program: beside the running executable, or where an installation puts it (../libexec/pixmosa).
std::filesystem::path ProgramaDecodificador();

// The picture in a file's bytes, upright and on white, as `programa` reads it. `mientras`, where there is
// one, is called about every 15 ms; what it throws passes through. The process is gone when this returns.
// Throws std::bad_alloc.
Decodificada Decodificar(const std::filesystem::path& programa, std::string_view bytes,
                         const std::function<void()>& mientras = {},
                         std::chrono::milliseconds plazo = std::chrono::seconds(15));

}  // namespace pixmosa
