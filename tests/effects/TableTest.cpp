#include <gtest/gtest.h>
#include <set>

#include "effects/EntradasDeImagen.h"
#include "effects/Giros.h"
#include "effects/basFiltrosConfig.h"
#include "platform/Colour.h"

using namespace pixmosa;

TEST(EffectTable, NineEffectsHaveADialogWithTheirRanges) {
  std::string dialogs;
  for (int n = 1; n <= kEfectos; ++n)
    if (const EffectConfig& e = *Efecto(n); e.Configurable)
      dialogs += std::to_string(n) + ":" + std::to_string(e.Min) + "," + std::to_string(e.Max) + " ";
  EXPECT_EQ(dialogs,
            "1:0,100 4:0,100 14:-100,100 15:1,20 17:-100,100 18:0,255 29:1,100 30:-100,100 31:1,100 ");
}

TEST(EffectTable, OdditiesStand) {
  EXPECT_STREQ(Efecto(10)->Name, "8");
  EXPECT_STREQ(Efecto(11)->Name, "9");
  EXPECT_STREQ(Efecto(28)->control, "");
  EXPECT_EQ(Efecto(6)->Max, 100);
  EXPECT_EQ(Efecto(18)->menu, 150 + 256 * 150 + 65536 * 150);
  EXPECT_EQ(Efecto(8)->menu, 256 * 120 + 65536 * 120);
  EXPECT_EQ(Efecto(0), nullptr);
  EXPECT_EQ(Efecto(33), nullptr);
  EXPECT_EQ(ArgumentoDelDeslizador(18, 255), kWhite);
  EXPECT_EQ(ArgumentoDelDeslizador(18, 0), 0);
  EXPECT_EQ(ArgumentoDelDeslizador(14, -100), -100);
}

TEST(EffectTable, StepNamesAreTheCaptionsInPlainLetters) {
  EXPECT_EQ(NombreDeOrden("Método 4"), "metodo-4");
  EXPECT_EQ(NombreDeOrden("Añadir ruido"), "anadir-ruido");
  EXPECT_EQ(NombreDeOrden("Aumentar exposición"), "aumentar-exposicion");
  EXPECT_EQ(NombreDeOrden("Realzar más"), "realzar-mas");
  std::set<std::string> names;
  for (int n = 1; n <= kEfectos; ++n) names.insert(NombreDeOrden(Efecto(n)->caption));
  for (const Giro& g : Giros()) names.insert(g.orden);
  EXPECT_EQ(names.size(), 38U) << "no two steps have the same name";
}

TEST(ImageMenu, ReachesEveryEffectButOneOnce) {
  std::multiset<int> effects;
  std::set<std::string> controls;
  std::size_t named = 0;
  for (const EntradaDeImagen& e : EntradasDeImagen()) {
    if (e.accion == Accion::Efecto) effects.insert(e.efecto);
    if (e.accion == Accion::Separador) continue;
    controls.insert(e.control);
    ++named;
    EXPECT_EQ(e.accion == Accion::Giro, e.giro != nullptr) << e.control;
  }
  for (int n = 1; n <= kEfectos; ++n) EXPECT_EQ(effects.count(n), n == 28 ? 0U : n == 16 ? 5U : 1U) << n;
  EXPECT_EQ(controls.size(), named) << "no two entries have the same name";
}
