#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "editor/Recuperacion.h"
#include "editor/TextoDelEditor.h"
#include "platform/AtomicFile.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;

namespace {

void Draw(BasEditor& e) {
  AbrirTexto(e, "ab\r\ncdé\r\n" + std::string(300, 'x'));
  EraseCell(e, {1, 1});
  e.CurrentChar = {U'█', 0xFFFFFF};
  PintarCaracter(e, 7, 3, U'█');
}

}  // namespace

TEST(Recuperacion, BytesHoldTheWholeDrawing) {
  BasEditor e, read;
  Draw(e);
  const std::string bytes = BytesDelDibujo(e);
  ASSERT_TRUE(LeerDibujo(bytes, read));
  EXPECT_TRUE(read.Grid == e.Grid);
  EXPECT_EQ(DrawingText(read), DrawingText(e));
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    BasEditor other;
    EXPECT_FALSE(LeerDibujo(bytes.substr(0, i), other)) << i;
    std::string broken = bytes;
    broken[i] = static_cast<char>(broken[i] ^ 0xFF);
    LeerDibujo(broken, other);  // whatever it makes of it
  }
  EXPECT_FALSE(LeerDibujo(bytes + "\1", read));
}

TEST(Recuperacion, WhatAKilledProcessDrewIsFound) {
  const test::TestFolder folder;
  const Resguardo kept(folder.Path() / "editor");
  EXPECT_TRUE(kept.Huerfanos().empty());
  const pid_t child = ::fork();
  if (child == 0) {
    BasEditor e;
    Draw(e);
    kept.Guardar(e);
    ::raise(SIGKILL);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  BasEditor mine, e, read;
  kept.Guardar(mine);  // of a process that is still there
  const auto found = kept.Huerfanos();
  ASSERT_EQ(found.size(), 1U);
  Draw(e);
  EXPECT_TRUE(LeerDibujo(LeerArchivo(found[0]), read));
  EXPECT_EQ(DrawingText(read), DrawingText(e));
  kept.Retirar();
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path() / "editor"), {}), 1);
}
