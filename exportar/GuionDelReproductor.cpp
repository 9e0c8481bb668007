#include "exportar/GuionDelReproductor.h"

namespace pixmosa {

// clang-format off
const char* const kReglasDeMandos = R"css(#mandos{position:sticky;bottom:0;display:flex;flex-wrap:wrap;gap:.5rem 1rem;align-items:center;justify-content:center;padding:.5rem;background:Canvas;color:CanvasText;font:1rem system-ui,sans-serif}
#mandos[hidden]{display:none}
#mandos button,#mandos select{font:inherit;min-height:2.2rem;padding:0 .8rem}
#mandos label{display:flex;gap:.4rem;align-items:center}
#mandos output{min-width:14ch;text-align:center;font-variant-numeric:tabular-nums}
#posicion{width:min(30rem,60vw)}
@media print{#mandos{display:none!important}}
)css";

const char* const kMandos = R"html(<div id="mandos" role="group" aria-label="Mandos de la película" hidden>
<button type="button" id="anterior" aria-label="Fotograma anterior">Anterior</button>
<button type="button" id="marcha" aria-keyshortcuts="Space">Reproducir</button>
<button type="button" id="siguiente" aria-label="Fotograma siguiente">Siguiente</button>
<label>Posición <input type="range" id="posicion" min="1" max="1" value="1" step="1"></label>
<output id="cuenta" for="posicion"></output>
<label>Velocidad <select id="velocidad"><option value="0.25">0,25×</option><option value="0.5">0,5×</option><option value="1" selected>1×</option><option value="2">2×</option><option value="4">4×</option></select></label>
<label><input type="checkbox" id="bucle" checked> Repetir</label>
</div>
<noscript><p>Sin guiones solo se ve el primer fotograma.</p></noscript>
)html";

const char* const kGuion = R"js(];
const el = id => document.getElementById(id), pre = document.querySelector("pre");
const last = F.length - 1, delays = F.map(f => f[0]), total = delays.reduce((a, b) => a + b, 0);
let now = -1, playing = false, due = 0, timer = 0, pictures = [];
const address = f => "data:image/png;base64," + f[2];
// The colours of the next frames are decoded before they are shown.
const prepare = () => {
  pictures = [];
  for (let i = 1; i < 9 && i <= last; i++) {
    const next = F[(now + i) % F.length];
    if (!next[2]) continue;
    const picture = new Image();
    picture.src = address(next);
    pictures.push(picture);
  }
};
const put = k => {
  if (k === now) return;
  now = k;
  pre.innerHTML = F[k][1];
  if (C) pre.style.backgroundImage = F[k][2] ? "url(" + address(F[k]) + ")" : "none";
  const words = "fotograma " + (k + 1) + " de " + F.length;
  el("posicion").value = k + 1;
  el("posicion").setAttribute("aria-valuetext", words);
  el("cuenta").textContent = words;
  prepare();
};
const speed = () => Number(el("velocidad").value);
const tick = () => {
  const time = performance.now();
  let k = now;
  if (time - due > total / speed()) due = time;
  while (playing && time >= due) {
    if (k === last && !el("bucle").checked) { play(false); break; }
    k = k === last ? 0 : k + 1;
    due += delays[k] / speed();
  }
  put(k);
  if (playing) timer = setTimeout(tick, due - time);
};
const play = on => {
  clearTimeout(timer);
  playing = on && last > 0;
  el("marcha").textContent = playing ? "Pausa" : "Reproducir";
  if (!playing) return;
  if (now === last && !el("bucle").checked) put(0);
  due = performance.now() + delays[now] / speed();
  timer = setTimeout(tick, delays[now] / speed());
};
const show = k => {
  play(false);
  put(Math.max(0, Math.min(last, Math.trunc(Number(k)) || 0)));
};
const step = by => show((now + by + F.length) % F.length);
el("posicion").max = F.length;
el("posicion").addEventListener("input", e => show(e.target.value - 1));
el("anterior").addEventListener("click", () => step(-1));
el("siguiente").addEventListener("click", () => step(1));
el("marcha").addEventListener("click", () => play(!playing));
el("velocidad").addEventListener("change", () => play(playing));
document.addEventListener("keydown", e => {
  const own = e.target instanceof Element && e.target.closest("button,input,select");
  if (e.ctrlKey || e.altKey || e.metaKey || e.shiftKey) return;
  if (e.key === " " && !own) play(!playing);
  else if (e.key === "ArrowRight" && !(own && own.matches("input,select"))) step(1);
  else if (e.key === "ArrowLeft" && !(own && own.matches("input,select"))) step(-1);
  else return;
  e.preventDefault();
});
window.pixmosa = Object.freeze({frames: F.length, delays, show});
put(0);
el("mandos").hidden = false;
play(!matchMedia("(prefers-reduced-motion: reduce)").matches);
})();
)js";
// clang-format on

}  // namespace pixmosa
