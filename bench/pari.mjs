// What libraries of the npm registry take for the program's work: a line "LIBRARY MS" for each.
//   node pari.mjs MODULES leggi FILE
//   node pari.mjs MODULES scrivi FILE TO     the items of that feed, as a feed of its own
import { readFileSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';

const [modules, lavoro, file, dove] = process.argv.slice(2);
const require = createRequire(`${modules}/`);
const Parser = require('rss-parser');

const millisecondi = (da) => Number(process.hrtime.bigint() - da) / 1e6;
const leggi = () => new Parser().parseString(readFileSync(file, 'latin1'));

async function misura(nome, quanti, azione) {
  const inizio = process.hrtime.bigint();
  const contati = await azione();
  const ms = millisecondi(inizio);
  if (contati !== quanti) throw new Error(`${nome}: ${contati} items`);
  console.log(`${nome} ${ms.toFixed(1)}`);
}

const quanti = readFileSync(file, 'latin1').split('<item>').length - 1;
if (lavoro === 'leggi') {
  await misura('rss-parser', quanti, async () => (await leggi()).items.length);
} else {
  const elementi = (await leggi()).items;
  const { Feed } = require('feed');
  await misura('feed', quanti, () => {
    const feed = new Feed({ title: 't', description: 'd', id: 'l',
      link: 'https://giornale.example/', copyright: 'c' });
    for (const e of elementi) {
      feed.addItem({ title: e.title, link: e.link, description: e.content, id: e.guid, guid: e.guid,
        author: [{ name: e.creator ?? '', email: 'a@example' }], date: new Date(e.isoDate) });
    }
    writeFileSync(dove, feed.rss2());
    return feed.items.length;
  });
  const RSS = require('rss');
  await misura('rss', quanti, () => {
    const feed = new RSS({ title: 't', description: 'd', feed_url: 'l', site_url: 'l' });
    for (const e of elementi) {
      feed.item({ title: e.title, url: e.link, description: e.content, guid: e.guid,
        author: e.creator, date: e.isoDate });
    }
    writeFileSync(dove, feed.xml());
    return feed.items.length;
  });
}
