// SPDX-License-Identifier: MIT
// What the pages do beyond what they do without it. The styles alone filter and swap pictures; this counts what is
// left, keeps the choice in the address, and colours the page.
'use strict';

function counted(number) {
  return number === 1 ? '1 theme' : `${number} themes`;
}

function setUpFilter(form) {
  const cards = [...document.querySelectorAll('.card')];
  const wishes = () => [...new FormData(form)].filter(([, value]) => value);

  function show() {
    const wanted = wishes();
    const shown = cards.filter(card => wanted.every(([name, value]) => card.dataset[name] === value));
    for (const card of cards) {
      card.hidden = !shown.includes(card);
    }
    for (const group of document.querySelectorAll('.group')) {
      group.hidden = !group.querySelector('.card:not([hidden])');
    }
    document.querySelector('.nothing').hidden = shown.length > 0;
    form.querySelector('output').textContent = counted(shown.length);
    form.querySelector('[type=reset]').disabled = wanted.length === 0;
  }

  function keep() {
    const address = new URLSearchParams(wishes()).toString();
    history.replaceState(null, '', `#${address || 'themes'}`);
  }

  function take() {
    const address = new URLSearchParams(location.hash.slice(1));
    const inputs = [...form.querySelectorAll('input')];
    const known = [...address].filter(([name, value]) => inputs.some(each => each.name === name && each.value === value));
    if (known.length === 0) {
      return;
    }
    form.reset();
    for (const [name, value] of known) {
      inputs.find(each => each.name === name && each.value === value).checked = true;
    }
    show();
    form.closest('section').scrollIntoView();
  }

  form.addEventListener('change', () => { show(); keep(); });
  form.addEventListener('reset', () => setTimeout(() => { show(); keep(); }));
  form.addEventListener('submit', event => event.preventDefault());
  window.addEventListener('hashchange', take);
  show();
  take();
}

function setUpDemo(form) {
  const place = document.body.classList.contains('theme') ? document.body : form;
  form.addEventListener('change', event => {
    place.style.setProperty('--accent', event.target.value);
    form.style.setProperty('--accent', event.target.value);
  });
  form.addEventListener('submit', event => event.preventDefault());
}

function setUpSlides(slides) {
  const turn = slides.parentElement.querySelector('.turn');
  turn.hidden = slides.children.length < 2;
  turn.addEventListener('click', event => {
    const steps = Number(event.target.dataset.turn);
    if (steps) {
      slides.scrollBy({left: steps * slides.firstElementChild.offsetWidth});
    }
  });
}

document.querySelectorAll('.filter').forEach(setUpFilter);
document.querySelectorAll('.demo').forEach(setUpDemo);
document.querySelectorAll('.slides').forEach(setUpSlides);
