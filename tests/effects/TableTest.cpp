#include <gtest/gtest.h>
#include <map>
#include <set>

#include "effects/EntradasDeImagen.h"
#include "effects/Giros.h"
#include "effects/basFiltrosConfig.h"
#include "platform/Colour.h"

using namespace pixmosa;

TEST(EffectTable, RangesAndNames) {
  std::string dialogs;
  std::set<std::string> names;
  for (int n = 1; n <= kEfectos; ++n) {
    const EffectConfig& e = *Efecto(n);
    names.insert(NombreDeOrden(e.caption));
    if (e.Configurable)
      dialogs += std::to_string(n) + ":" + std::to_string(e.Min) + "," + std::to_string(e.Max) + " ";
  }
  EXPECT_EQ(dialogs,
            "1:0,100 4:0,100 14:-100,100 15:1,20 17:-100,100 18:0,255 29:1,100 30:-100,100 31:1,100 ");
  for (const Giro& g : Giros()) names.insert(g.orden);
  EXPECT_EQ(names.size(), kEfectos + Giros().size()) << "no two steps have the same name";
  for (const char* name : {"metodo-4", "anadir-ruido", "aumentar-exposicion", "realzar-mas"})
    EXPECT_EQ(names.count(name), 1U) << name;
}

TEST(EffectTable, OdditiesStand) {
  EXPECT_STREQ(Efecto(10)->Name, "8");
  EXPECT_STREQ(Efecto(11)->Name, "9");
  EXPECT_STREQ(Efecto(28)->control, "");
  EXPECT_EQ(Efecto(6)->Max, 100);
  EXPECT_TRUE(!Efecto(0) && !Efecto(33));
  EXPECT_EQ(ArgumentoDelDeslizador(18, 255), kWhite);
  EXPECT_EQ(ArgumentoDelDeslizador(14, -100), -100);
}

TEST(ImageMenu, ReachesEveryEffectButOneOnce) {
  std::map<int, int> effects;
  std::set<std::string> controls;
  for (const EntradaDeImagen& e : EntradasDeImagen()) {
    if (e.accion == Accion::Efecto) ++effects[e.efecto];
    EXPECT_TRUE(e.accion == Accion::Separador || controls.insert(e.control).second) << e.control;
    EXPECT_EQ(e.accion == Accion::Giro, e.giro != nullptr) << e.control;
  }
  for (int n = 1; n <= kEfectos; ++n) EXPECT_EQ(effects[n], n == 28 ? 0 : n == 16 ? 5 : 1) << n;
}
