<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message numerus="yes">
        <source>Bring “%1” to storage charge: it has been charged, and not used, for %n days.</source>
        <translation>
            <numerusform>Mettez «&#xa0;%1&#xa0;» en charge de stockage&#xa0;: elle est chargée et inutilisée depuis %n jour.</numerusform>
            <numerusform>Mettez «&#xa0;%1&#xa0;» en charge de stockage&#xa0;: elle est chargée et inutilisée depuis %n jours.</numerusform>
        </translation>
    </message>
    <message>
        <source>Land earlier with “%1”: one of its last discharges took %2 of its capacity.</source>
        <translation>Posez-vous plus tôt avec «&#xa0;%1&#xa0;»&#xa0;: l’une de ses dernières décharges a pris %2 de sa capacité.</translation>
    </message>
    <message>
        <source>Load “%1” less: one of its last discharges reached %2 C, and its label allows %3 C.</source>
        <translation>Sollicitez moins «&#xa0;%1&#xa0;»&#xa0;: l’une de ses dernières décharges a atteint %2&#xa0;C, et son étiquette autorise %3&#xa0;C.</translation>
    </message>
    <message>
        <source>Warm “%1” before you fly: its last flight was at %2 °C.</source>
        <translation>Réchauffez «&#xa0;%1&#xa0;» avant de voler&#xa0;: son dernier vol s’est fait à %2&#xa0;°C.</translation>
    </message>
    <message numerus="yes">
        <source>Check the voltage of “%1”: it has not been used for %n days.</source>
        <translation>
            <numerusform>Vérifiez la tension de «&#xa0;%1&#xa0;»&#xa0;: elle n’a pas servi depuis %n jour.</numerusform>
            <numerusform>Vérifiez la tension de «&#xa0;%1&#xa0;»&#xa0;: elle n’a pas servi depuis %n jours.</numerusform>
        </translation>
    </message>
    <message>
        <source>Watch how “%1” performs: it was bought on %2.</source>
        <translation>Surveillez le comportement de «&#xa0;%1&#xa0;»&#xa0;: son achat date du %2.</translation>
    </message>
    <message>
        <source>Set the timer of “%1” to %2 for “%3”: its flights on this battery show how much it needs.</source>
        <translation>Réglez le chrono de «&#xa0;%1&#xa0;» à %2 pour «&#xa0;%3&#xa0;»&#xa0;: ses vols avec cette batterie montrent ce qu’il lui faut.</translation>
    </message>
</context>
<context>
    <name>AdviceLimits</name>
    <message>
        <source>Charged and not used, notice after</source>
        <translation>Chargée et inutilisée, avis après</translation>
    </message>
    <message numerus="yes">
        <source> days</source>
        <translation>
            <numerusform> jour</numerusform>
            <numerusform> jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Charged and not used, warning after</source>
        <translation>Chargée et inutilisée, alerte après</translation>
    </message>
    <message>
        <source>Deep discharge, notice over</source>
        <translation>Décharge profonde, avis au-delà de</translation>
    </message>
    <message numerus="yes">
        <source> % of the capacity</source>
        <translation>
            <numerusform> % de la capacité</numerusform>
            <numerusform> % de la capacité</numerusform>
        </translation>
    </message>
    <message>
        <source>Deep discharges, warning over</source>
        <translation>Décharges profondes, alerte au-delà de</translation>
    </message>
    <message>
        <source>Deep discharges, warning from</source>
        <translation>Décharges profondes, alerte à partir de</translation>
    </message>
    <message numerus="yes">
        <source> of them</source>
        <translation>
            <numerusform> d’entre elles</numerusform>
            <numerusform> d’entre elles</numerusform>
        </translation>
    </message>
    <message>
        <source>Newest discharges that are looked at</source>
        <translation>Dernières décharges examinées</translation>
    </message>
    <message numerus="yes">
        <source> discharges</source>
        <translation>
            <numerusform> décharge</numerusform>
            <numerusform> décharges</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, below</source>
        <translation>Vol par temps froid, sous</translation>
    </message>
    <message numerus="yes">
        <source> °C</source>
        <translation>
            <numerusform> °C</numerusform>
            <numerusform> °C</numerusform>
        </translation>
    </message>
    <message>
        <source>Cold flight, within the last</source>
        <translation>Vol par temps froid, il y a moins de</translation>
    </message>
    <message>
        <source>Not used, notice after</source>
        <translation>Inutilisée, avis après</translation>
    </message>
    <message>
        <source>Old battery, notice after</source>
        <translation>Vieille batterie, avis après</translation>
    </message>
    <message numerus="yes">
        <source> years</source>
        <translation>
            <numerusform> an</numerusform>
            <numerusform> ans</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, for a discharge of</source>
        <translation>Chrono, pour une décharge de</translation>
    </message>
    <message>
        <source>Timer, from so many flights on</source>
        <translation>Chrono, à partir de</translation>
    </message>
    <message numerus="yes">
        <source> flights</source>
        <translation>
            <numerusform> vol</numerusform>
            <numerusform> vols</numerusform>
        </translation>
    </message>
    <message>
        <source>Timer, rounded down to</source>
        <translation>Chrono, arrondi vers le bas à</translation>
    </message>
    <message numerus="yes">
        <source> seconds</source>
        <translation>
            <numerusform> seconde</numerusform>
            <numerusform> secondes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BackupKeeper</name>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Rename or remove it; the program tries again by itself.</source>
        <translation>Aucune copie du carnet ne peut être conservée dans «&#xa0;%1&#xa0;»&#xa0;: %2. Renommez ou supprimez cet élément&#x202f;; le programme réessaie de lui-même.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. Free some space; the program tries again by itself.</source>
        <translation>Aucune copie du carnet ne peut être conservée dans «&#xa0;%1&#xa0;»&#xa0;: %2. Libérez de l’espace&#x202f;; le programme réessaie de lui-même.</translation>
    </message>
    <message>
        <source>No copy of the logbook can be kept in “%1”: %2. See that the program can write there; it tries again by itself.</source>
        <translation>Aucune copie du carnet ne peut être conservée dans «&#xa0;%1&#xa0;»&#xa0;: %2. Veillez à ce que le programme puisse y écrire&#x202f;; il réessaie de lui-même.</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>il est absent</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>it is a link that leads nowhere</source>
        <translation>c’est un lien qui ne mène nulle part</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>the copies that are there cannot be listed</source>
        <translation>les copies présentes ne peuvent pas être listées</translation>
    </message>
</context>
<context>
    <name>BatteryChart</name>
    <message>
        <source>Capacity, %1</source>
        <translation>Capacité, %1</translation>
    </message>
    <message>
        <source>Permitted by the rating, %1</source>
        <translation>Autorisé par l’étiquette, %1</translation>
    </message>
    <message>
        <source>%1 (%2 %)</source>
        <translation>%1 (%2 %)</translation>
    </message>
    <message>
        <source>Capacity used</source>
        <translation>Capacité utilisée</translation>
    </message>
    <message>
        <source>Maximum current</source>
        <translation>Courant maximal</translation>
    </message>
    <message>
        <source>Highest load</source>
        <translation>Taux C maximal</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2: %Ln discharges from %3 to %4, %5 to %6.</source>
        <translation>
            <numerusform>%1 de %2&#xa0;: %Ln décharge du %3 au %4, de %5 à %6.</numerusform>
            <numerusform>%1 de %2&#xa0;: %Ln décharges du %3 au %4, de %5 à %6.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1&#xa0;: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln discharges without a time are in the table alone.</source>
        <translation>
            <numerusform>%Ln décharge sans heure ne figure que dans le tableau.</numerusform>
            <numerusform>%Ln décharges sans heure ne figurent que dans le tableau.</numerusform>
        </translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>Résistance interne</translation>
    </message>
    <message>
        <source>Measured capacity</source>
        <translation>Capacité mesurée</translation>
    </message>
    <message>
        <source>mΩ</source>
        <translation>mΩ</translation>
    </message>
</context>
<context>
    <name>BatteryHealth</name>
    <message>
        <source>No trend stands out from chance.</source>
        <translation>Aucune tendance ne se distingue du hasard.</translation>
    </message>
    <message>
        <source>Capacity: shown once five measured flights tell it; so far %1.</source>
        <translation>Capacité&#xa0;: affichée dès que cinq vols mesurés la donnent&#xa0;; jusqu’ici %1.</translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh of that.</source>
        <translation>
            <numerusform>Capacité&#xa0;: environ %1 mAh sur %2, d’après %Ln vol, dont la moitié s’en écarte de %3 mAh au plus.</numerusform>
            <numerusform>Capacité&#xa0;: environ %1 mAh sur %2, d’après %Ln vols, dont la moitié s’en écarte de %3 mAh au plus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of that.</source>
        <translation>
            <numerusform>Capacité&#xa0;: environ %1 mAh, d’après %Ln vol, dont la moitié s’en écarte de %2 mAh au plus.</numerusform>
            <numerusform>Capacité&#xa0;: environ %1 mAh, d’après %Ln vols, dont la moitié s’en écarte de %2 mAh au plus.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has fallen by about %1 mAh over these flights.</source>
        <translation>Vieillissement&#xa0;: elle a baissé d’environ %1 mAh au fil de ces vols.</translation>
    </message>
    <message>
        <source>Internal resistance: shown once five measured flights tell it; so far %1.</source>
        <translation>Résistance interne&#xa0;: affichée dès que cinq vols mesurés la donnent&#xa0;; jusqu’ici %1.</translation>
    </message>
    <message numerus="yes">
        <source>Internal resistance: about %1 mΩ, from %Ln flights, half of them within %2 mΩ of that.</source>
        <translation>
            <numerusform>Résistance interne&#xa0;: environ %1 mΩ, d’après %Ln vol, dont la moitié s’en écarte de %2 mΩ au plus.</numerusform>
            <numerusform>Résistance interne&#xa0;: environ %1 mΩ, d’après %Ln vols, dont la moitié s’en écarte de %2 mΩ au plus.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ageing: it has risen by about %1 mΩ over these flights.</source>
        <translation>Vieillissement&#xa0;: elle a augmenté d’environ %1 mΩ au fil de ces vols.</translation>
    </message>
    <message>
        <source>No flight of “%1” was measured yet: choose Import Radio Logs… in the menu Logbook to read what your radio has logged.</source>
        <translation>Aucun vol de «&#xa0;%1&#xa0;» n’a encore été mesuré&#xa0;: choisissez Importer des journaux de radio… dans le menu Carnet pour lire ce que votre radio a enregistré.</translation>
    </message>
</context>
<context>
    <name>BatteryWidget</name>
    <message>
        <source>BatteryWidget</source>
        <translation>BatteryWidget</translation>
    </message>
    <message>
        <source>Last use:</source>
        <translation>Dernier usage&#xa0;:</translation>
    </message>
    <message>
        <source>Discharged:</source>
        <translation>Décharge&#xa0;:</translation>
    </message>
    <message>
        <source>Max. Current:</source>
        <translation>Courant max.&#xa0;:</translation>
    </message>
    <message>
        <source>Cycles:</source>
        <translation>Cycles&#xa0;:</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Chargée</translation>
    </message>
    <message>
        <source>Discharged</source>
        <translation>Déchargée</translation>
    </message>
    <message>
        <source>%1: charged; press when discharged</source>
        <translation>%1&#xa0;: chargée&#x202f;; appuyez une fois déchargée</translation>
    </message>
    <message>
        <source>%1: discharged; press when charged</source>
        <translation>%1&#xa0;: déchargée&#x202f;; appuyez une fois chargée</translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>the disk took only a part of it</source>
        <translation>le disque n’en a pris qu’une partie</translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Batterie %1 renommée</translation>
    </message>
    <message>
        <source>Charged %1</source>
        <translation>Batterie %1 chargée</translation>
    </message>
    <message>
        <source>Discharged %1</source>
        <translation>Batterie %1 déchargée</translation>
    </message>
    <message>
        <source>Battery %1 edited</source>
        <translation>Batterie %1 modifiée</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Modèle %1 renommé</translation>
    </message>
    <message>
        <source>Batteries of %1 changed</source>
        <translation>Batteries de %1 modifiées</translation>
    </message>
    <message>
        <source>Flight of %1 recorded</source>
        <translation>Vol de %1 enregistré</translation>
    </message>
    <message>
        <source>Flight of %1 deleted</source>
        <translation>Vol de %1 supprimé</translation>
    </message>
    <message>
        <source>Flight of %1 edited</source>
        <translation>Vol de %1 modifié</translation>
    </message>
    <message>
        <source>Model %1 edited</source>
        <translation>Modèle %1 modifié</translation>
    </message>
    <message>
        <source>Battery %1 added</source>
        <translation>Batterie %1 ajoutée</translation>
    </message>
    <message>
        <source>Battery %1 deleted</source>
        <translation>Batterie %1 supprimée</translation>
    </message>
    <message>
        <source>Model %1 added</source>
        <translation>Modèle %1 ajouté</translation>
    </message>
    <message>
        <source>Model %1 deleted</source>
        <translation>Modèle %1 supprimé</translation>
    </message>
    <message>
        <source>Location %1 added</source>
        <translation>Lieu %1 ajouté</translation>
    </message>
    <message>
        <source>Location %1 deleted</source>
        <translation>Lieu %1 supprimé</translation>
    </message>
    <message>
        <source>Change of the logbook</source>
        <translation>Modification du carnet</translation>
    </message>
</context>
<context>
    <name>CopyRestoring</name>
    <message>
        <source>it is a link</source>
        <translation>c’est un lien</translation>
    </message>
    <message>
        <source>What radio logs told of this copy cannot be read: %1. What is known now and fits to it is kept.</source>
        <translation>Ce que les journaux de radio ont indiqué pour cette copie ne peut pas être lu&#xa0;: %1. Ce qui est connu maintenant et lui correspond est conservé.</translation>
    </message>
    <message>
        <source>the values that radio logs tell cannot be copied</source>
        <translation>les valeurs données par les journaux de radio ne peuvent pas être copiées</translation>
    </message>
</context>
<context>
    <name>DateMark</name>
    <message>
        <source>Not a valid date: no date will be stored</source>
        <translation>Date non valide&#xa0;: aucune date ne sera enregistrée</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>The sample logbook “%1” cannot be written: %2. Free some space, or check the rights of its folder.</source>
        <translation>Le carnet d’exemple «&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2. Libérez de l’espace ou vérifiez les droits de son dossier.</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>without a time</source>
        <translation>sans heure</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>notes: %1</source>
        <translation>notes&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 mAh</source>
        <translation>%1 mAh</translation>
    </message>
    <message>
        <source>%1 A</source>
        <translation>%1 A</translation>
    </message>
    <message>
        <source>discharge rate %1 C</source>
        <translation>taux de décharge %1 C</translation>
    </message>
    <message>
        <source>charge rate %1 C</source>
        <translation>taux de charge %1 C</translation>
    </message>
    <message>
        <source>cycles: %1</source>
        <translation>cycles&#xa0;: %1</translation>
    </message>
    <message>
        <source>charged</source>
        <translation>chargée</translation>
    </message>
    <message>
        <source>discharged</source>
        <translation>déchargée</translation>
    </message>
    <message>
        <source>bought on %1</source>
        <translation>achat le %1</translation>
    </message>
    <message>
        <source>last used %1</source>
        <translation>dernier usage le %1</translation>
    </message>
    <message>
        <source>type: %1</source>
        <translation>type&#xa0;: %1</translation>
    </message>
    <message>
        <source>weight: %1</source>
        <translation>poids&#xa0;: %1</translation>
    </message>
    <message>
        <source>size: %1</source>
        <translation>taille&#xa0;: %1</translation>
    </message>
    <message>
        <source>flights already used: %1</source>
        <translation>vols déjà effectués&#xa0;: %1</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>batteries&#xa0;: %1</translation>
    </message>
    <message>
        <source>last changed %1</source>
        <translation>dernière modification le %1</translation>
    </message>
    <message>
        <source>%1 fewer</source>
        <translation>%1 en moins</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 en plus</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>%1 avec changements</translation>
    </message>
    <message>
        <source>%1 charged</source>
        <translation>%1 à l’état chargé</translation>
    </message>
    <message>
        <source>%1 discharged</source>
        <translation>%1 à l’état déchargé</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Vol</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Décharge</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>1 flight</source>
        <translation>1 vol</translation>
    </message>
    <message numerus="yes">
        <source>%n flights</source>
        <translation>
            <numerusform>%n vol</numerusform>
            <numerusform>%n vols</numerusform>
        </translation>
    </message>
    <message>
        <source>1 discharge</source>
        <translation>1 décharge</translation>
    </message>
    <message numerus="yes">
        <source>%n discharges</source>
        <translation>
            <numerusform>%n décharge</numerusform>
            <numerusform>%n décharges</numerusform>
        </translation>
    </message>
    <message>
        <source>1 battery</source>
        <translation>1 batterie</translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n batterie</numerusform>
            <numerusform>%n batteries</numerusform>
        </translation>
    </message>
    <message>
        <source>1 model</source>
        <translation>1 modèle</translation>
    </message>
    <message numerus="yes">
        <source>%n models</source>
        <translation>
            <numerusform>%n modèle</numerusform>
            <numerusform>%n modèles</numerusform>
        </translation>
    </message>
    <message>
        <source>1 location</source>
        <translation>1 lieu</translation>
    </message>
    <message numerus="yes">
        <source>%n locations</source>
        <translation>
            <numerusform>%n lieu</numerusform>
            <numerusform>%n lieux</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>identique à maintenant</translation>
    </message>
    <message>
        <source>the same as now, in another order</source>
        <translation>identique à maintenant, dans un autre ordre</translation>
    </message>
</context>
<context>
    <name>Edits</name>
    <message>
        <source>There is no such time: the clock leaves it out, as it does where summer time begins.</source>
        <translation>Cette heure n’existe pas&#xa0;: l’horloge la saute, comme au passage à l’heure d’été.</translation>
    </message>
    <message>
        <source>The year must be from %1 to %2.</source>
        <translation>L’année doit être comprise entre %1 et %2.</translation>
    </message>
    <message>
        <source>The temperature must be from %1 to %2 °C.</source>
        <translation>La température doit être comprise entre %1 et %2&#xa0;°C.</translation>
    </message>
    <message>
        <source>The duration must be less than 24 hours.</source>
        <translation>La durée doit être inférieure à 24 heures.</translation>
    </message>
    <message>
        <source>The discharge must be from 0 to %1 mAh.</source>
        <translation>La décharge doit être comprise entre 0 et %1&#xa0;mAh.</translation>
    </message>
    <message>
        <source>The current must be from 0 to %1 A.</source>
        <translation>Le courant doit être compris entre 0 et %1&#xa0;A.</translation>
    </message>
    <message>
        <source>The text holds a control character, or half a character, which the logbook file cannot hold. Leave it out.</source>
        <translation>Le texte contient un caractère de contrôle ou une moitié de caractère, que le fichier du carnet ne peut pas contenir. Retirez-le.</translation>
    </message>
    <message>
        <source>The flight of %1 has a discharge of the battery “%2” already.</source>
        <translation>Le vol du %1 a déjà une décharge de la batterie «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>None of these flights has a discharge of the battery “%1”.</source>
        <translation>Aucun de ces vols n’a de décharge de la batterie «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The name must not be empty.</source>
        <translation>Le nom ne doit pas être vide.</translation>
    </message>
    <message>
        <source>There is “%1” already. Choose another name.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Choisissez un autre nom.</translation>
    </message>
</context>
<context>
    <name>ExportFormats</name>
    <message>
        <source>Workbook for spreadsheets (XLSX)</source>
        <translation>Classeur pour tableurs (XLSX)</translation>
    </message>
    <message>
        <source>Tables for your spreadsheet (CSV)</source>
        <translation>Tableaux pour votre tableur (CSV)</translation>
    </message>
    <message>
        <source>Tables for other programs (CSV)</source>
        <translation>Tableaux pour d’autres programmes (CSV)</translation>
    </message>
    <message>
        <source>Everything for scripts (JSON)</source>
        <translation>Tout pour vos scripts (JSON)</translation>
    </message>
    <message>
        <source>One file with five sheets, with real numbers and dates. The best choice for LibreOffice, Excel and other spreadsheets.</source>
        <translation>Un seul fichier de cinq feuilles, avec de vrais nombres et de vraies dates. Le meilleur choix pour LibreOffice, Excel et les autres tableurs.</translation>
    </message>
    <message>
        <source>Five files in a folder, with the decimal sign of your country. A text that looks like a formula gets an apostrophe.</source>
        <translation>Cinq fichiers dans un dossier, avec le signe décimal de votre pays. Un texte qui ressemble à une formule reçoit une apostrophe.</translation>
    </message>
    <message>
        <source>Five files in a folder, the same on every computer, for databases and other programs.</source>
        <translation>Cinq fichiers dans un dossier, identiques sur tous les ordinateurs, pour les bases de données et d’autres programmes.</translation>
    </message>
    <message>
        <source>One file that holds everything with its relations, for programs of your own.</source>
        <translation>Un seul fichier qui contient tout, avec les relations, pour vos propres programmes.</translation>
    </message>
</context>
<context>
    <name>Exporting</name>
    <message>
        <source>“%1” cannot be put in its place: %2. Export again.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être mis à sa place&#xa0;: %2. Recommencez l’exportation.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2. Nothing was exported.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: %2. Rien n’a été exporté.</translation>
    </message>
    <message>
        <source>This build of Voltbok cannot write XLSX. Choose csv-local for your spreadsheet.</source>
        <translation>Cette version compilée de Voltbok ne sait pas écrire le format XLSX. Choisissez csv-local pour votre tableur.</translation>
    </message>
    <message>
        <source>“%1” exists already. Nothing was exported.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Rien n’a été exporté.</translation>
    </message>
    <message>
        <source>“%1” is there already, and is no file that could be replaced. Nothing was exported.</source>
        <translation>«&#xa0;%1&#xa0;» est déjà là, et ce n’est pas un fichier qui pourrait être remplacé. Rien n’a été exporté.</translation>
    </message>
    <message>
        <source>“%1” is a logbook, and nothing takes its place. Choose another name.</source>
        <translation>«&#xa0;%1&#xa0;» est un carnet, et rien ne prend sa place. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>“%1” is not a folder. Nothing was exported.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un dossier. Rien n’a été exporté.</translation>
    </message>
    <message>
        <source>There is no folder “%1”. Nothing was exported.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n’existe pas. Rien n’a été exporté.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made. Nothing was exported.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» ne peut pas être créé. Rien n’a été exporté.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (ligne %2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>model “%1”: no battery has a discharge at the time of the flight of %2</source>
        <translation>modèle «&#xa0;%1&#xa0;»&#xa0;: aucune batterie n’a de décharge à l’heure du vol du %2</translation>
    </message>
    <message>
        <source>model “%1”: a flight has no time, so that no discharge belongs to it</source>
        <translation>modèle «&#xa0;%1&#xa0;»&#xa0;: un vol n’a pas d’heure, si bien qu’aucune décharge ne lui correspond</translation>
    </message>
    <message>
        <source>battery “%1”: no model has a flight at the time of the discharge of %2</source>
        <translation>batterie «&#xa0;%1&#xa0;»&#xa0;: aucun modèle n’a de vol à l’heure de la décharge du %2</translation>
    </message>
    <message>
        <source>battery “%1”: a discharge has no time, so that no flight belongs to it</source>
        <translation>batterie «&#xa0;%1&#xa0;»&#xa0;: une décharge n’a pas d’heure, si bien qu’aucun vol ne lui correspond</translation>
    </message>
    <message>
        <source>several batteries are called “%1” (lines %2)</source>
        <translation>plusieurs batteries se nomment «&#xa0;%1&#xa0;» (lignes %2)</translation>
    </message>
    <message>
        <source>several models are called “%1” (lines %2)</source>
        <translation>plusieurs modèles se nomment «&#xa0;%1&#xa0;» (lignes %2)</translation>
    </message>
    <message>
        <source>several locations are called “%1” (lines %2)</source>
        <translation>plusieurs lieux se nomment «&#xa0;%1&#xa0;» (lignes %2)</translation>
    </message>
</context>
<context>
    <name>FlightBook</name>
    <message>
        <source>Flight book</source>
        <translation>Carnet de vol</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>du %1 au %2</translation>
    </message>
    <message>
        <source>from %1 on</source>
        <translation>à partir du %1</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>jusqu’au %1</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batteries</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Lieu et date</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Signature</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Cette page</translation>
    </message>
    <message>
        <source>Brought forward</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Carried forward</source>
        <translation>À reporter</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Vols&#xa0;: %1</translation>
    </message>
    <message>
        <source>There are no flights within these limits.</source>
        <translation>Il n’y a aucun vol dans ces limites.</translation>
    </message>
    <message>
        <source>There are no flights in this logbook yet.</source>
        <translation>Il n’y a encore aucun vol dans ce carnet.</translation>
    </message>
</context>
<context>
    <name>FlightEdits</name>
    <message numerus="yes">
        <source>Enter a figure for each of the %n batteries, with a semicolon between them.</source>
        <translation>
            <numerusform>Saisissez %n valeur pour la batterie.</numerusform>
            <numerusform>Saisissez une valeur pour chacune des %n batteries, séparées par un point-virgule.</numerusform>
        </translation>
    </message>
    <message>
        <source>The logbook has changed meanwhile. Look at the table again, and repeat what you did.</source>
        <translation>Le carnet a changé entre-temps. Regardez de nouveau le tableau et recommencez.</translation>
    </message>
    <message>
        <source>Flight edited</source>
        <translation>Vol modifié</translation>
    </message>
</context>
<context>
    <name>FlightForm</name>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Heure</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modèle</translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation>&amp;Batterie</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Durée</translation>
    </message>
    <message>
        <source>D&amp;ischarged</source>
        <translation>Déchar&amp;gé</translation>
    </message>
    <message>
        <source>Maximum &amp;current</source>
        <translation>&amp;Courant maximal</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Lieu</translation>
    </message>
    <message>
        <source>Tem&amp;perature</source>
        <translation>&amp;Température</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notes</translation>
    </message>
    <message>
        <source> mAh</source>
        <translation> mAh</translation>
    </message>
    <message>
        <source> A</source>
        <translation> A</translation>
    </message>
    <message>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>The folder “%1” cannot be made: %2. Choose another folder.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» ne peut pas être créé&#xa0;: %2. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The folder “%1”, which keeps two windows from one logbook, cannot be made: %2.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;», qui empêche deux fenêtres d’utiliser le même carnet, ne peut pas être créé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Another program keeps the folder “%1” locked. Wait until it is done, then try again.</source>
        <translation>Un autre programme verrouille le dossier «&#xa0;%1&#xa0;». Attendez qu’il ait terminé, puis réessayez.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” was left behind and cannot be removed (%3). Ask the owner of the file or of its folder to remove it.</source>
        <translation>Le carnet dans «&#xa0;%1&#xa0;» ne peut pas être verrouillé&#xa0;: le fichier de verrouillage «&#xa0;%2&#xa0;» est resté là et ne peut pas être supprimé (%3). Demandez au propriétaire du fichier ou de son dossier de le supprimer.</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: the lock file “%2” cannot be written (%3).</source>
        <translation>Le carnet dans «&#xa0;%1&#xa0;» ne peut pas être verrouillé&#xa0;: le fichier de verrouillage «&#xa0;%2&#xa0;» ne peut pas être écrit (%3).</translation>
    </message>
    <message>
        <source>somebody else writes it</source>
        <translation>quelqu’un d’autre l’écrit</translation>
    </message>
    <message>
        <source>The logbook in “%1” cannot be locked: “%2” is in the way, and is not a regular file. Remove or rename it, then try again.</source>
        <translation>Le carnet dans «&#xa0;%1&#xa0;» ne peut pas être verrouillé&#xa0;: «&#xa0;%2&#xa0;» fait obstacle et n’est pas un fichier ordinaire. Supprimez-le ou renommez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is locked by the user “%2”, whose lock file “%3” cannot be read. Ask “%2” to close it first. If “%2” does not have it open, you can take it over.</source>
        <translation>Le carnet dans «&#xa0;%1&#xa0;» est verrouillé par l’utilisateur «&#xa0;%2&#xa0;», dont le fichier de verrouillage «&#xa0;%3&#xa0;» ne peut pas être lu. Demandez d’abord à «&#xa0;%2&#xa0;» de le fermer. Si «&#xa0;%2&#xa0;» ne l’a pas ouvert, vous pouvez le reprendre.</translation>
    </message>
    <message>
        <source>unknown program</source>
        <translation>programme inconnu</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, processus %2</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open on the computer “%2” (%3), says the lock file “%4”. Close it there first.</source>
        <translation>Le carnet dans «&#xa0;%1&#xa0;» est ouvert sur l’ordinateur «&#xa0;%2&#xa0;» (%3), d’après le fichier de verrouillage «&#xa0;%4&#xa0;». Fermez-le d’abord là-bas.</translation>
    </message>
    <message>
        <source>If that computer was switched off without closing it, you can take the logbook over.</source>
        <translation>Si cet ordinateur a été éteint sans le fermer, vous pouvez reprendre le carnet.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already: the user “%2” has it (%3), says the lock file “%4”. It must be closed there first.</source>
        <translation>Le carnet dans «&#xa0;%1&#xa0;» est déjà ouvert&#xa0;: l’utilisateur «&#xa0;%2&#xa0;» l’a ouvert (%3), d’après le fichier de verrouillage «&#xa0;%4&#xa0;». Il faut d’abord le fermer là-bas.</translation>
    </message>
    <message>
        <source>The logbook in “%1” is open already (%2). Use the window that shows it, or close that first.</source>
        <translation>Le carnet dans «&#xa0;%1&#xa0;» est déjà ouvert (%2). Utilisez la fenêtre qui l’affiche, ou fermez-la d’abord.</translation>
    </message>
</context>
<context>
    <name>Host::BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>Sauvegardes</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>Every version of the logbook is copied. Restoring a copy is one step, which Undo takes back; the logbook as it is now is copied first.</source>
        <translation>Chaque version du carnet est copiée. Restaurer une copie est une seule étape, qu’Annuler défait&#xa0;; le carnet tel qu’il est maintenant est d’abord copié.</translation>
    </message>
    <message>
        <source>Copies, the newest first</source>
        <translation>Copies, la plus récente en premier</translation>
    </message>
    <message>
        <source>&amp;Copies, the newest first:</source>
        <translation>&amp;Copies, la plus récente en premier&#xa0;:</translation>
    </message>
    <message>
        <source>What differs from the logbook now</source>
        <translation>Ce qui diffère du carnet actuel</translation>
    </message>
    <message>
        <source>&amp;What differs from the logbook now:</source>
        <translation>Ce qui &amp;diffère du carnet actuel&#xa0;:</translation>
    </message>
    <message>
        <source>How many copies are compared</source>
        <translation>Nombre de copies comparées</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Le carnet ne peut pas être lu pour l’instant. Libérez de l’espace, puis réessayez.</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed.</source>
        <translation>Les copies dans «&#xa0;%1&#xa0;» ne peuvent pas être listées.</translation>
    </message>
    <message>
        <source>There is no copy yet.</source>
        <translation>Il n’y a pas encore de copie.</translation>
    </message>
    <message>
        <source>The copies cannot be compared: %1. Free some space, and try again.</source>
        <translation>Les copies ne peuvent pas être comparées&#xa0;: %1. Libérez de l’espace, puis réessayez.</translation>
    </message>
    <message>
        <source>The copy of %1 holds %2.</source>
        <translation>La copie du %1 contient %2.</translation>
    </message>
    <message>
        <source>This copy cannot be restored: %1.</source>
        <translation>Cette copie ne peut pas être restaurée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>This copy is not whole any more: %1. Choose another one.</source>
        <translation>Cette copie n’est plus intacte&#xa0;: %1. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The logbook is as in this copy already. Nothing was changed.</source>
        <translation>Le carnet est déjà identique à cette copie. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The copy of %1 is restored. “Undo” in the menu Edit takes that back.</source>
        <translation>La copie du %1 est restaurée. «&#xa0;Annuler&#xa0;», dans le menu Édition, défait cette opération.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesModel</name>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Décharges</translation>
    </message>
    <message>
        <source>Measured or entered</source>
        <translation>Mesurées ou saisies</translation>
    </message>
    <message>
        <source>Full cycles</source>
        <translation>Cycles complets</translation>
    </message>
    <message>
        <source>Median depth (%)</source>
        <translation>Profondeur médiane (%)</translation>
    </message>
    <message>
        <source>Deepest (%)</source>
        <translation>Profondeur max. (%)</translation>
    </message>
    <message>
        <source>Highest load (C)</source>
        <translation>Taux max. (C)</translation>
    </message>
    <message>
        <source>Age (years)</source>
        <translation>Âge (ans)</translation>
    </message>
    <message>
        <source>Days since use</source>
        <translation>Jours sans usage</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vols</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>mAh per minute</source>
        <translation>mAh par minute</translation>
    </message>
    <message>
        <source>Total (mAh)</source>
        <translation>Total (mAh)</translation>
    </message>
    <message>
        <source>The name of the battery.</source>
        <translation>Le nom de la batterie.</translation>
    </message>
    <message>
        <source>How many discharges are recorded.</source>
        <translation>Le nombre de décharges enregistrées.</translation>
    </message>
    <message>
        <source>How many of the discharges were measured by a radio or entered by you: medians, means and maxima are taken from these alone.</source>
        <translation>Le nombre de décharges mesurées par une radio ou saisies par vous&#xa0;: les médianes, moyennes et maximums ne proviennent que d’elles.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, divided by its capacity.</source>
        <translation>Tout ce qui a été tiré de la batterie, divisé par sa capacité.</translation>
    </message>
    <message>
        <source>Half of the discharges used less of the capacity than this, half of them more.</source>
        <translation>La moitié des décharges a utilisé une plus petite part de la capacité, l’autre moitié une plus grande.</translation>
    </message>
    <message>
        <source>The largest part of the capacity that one discharge used.</source>
        <translation>La plus grande part de la capacité utilisée par une seule décharge.</translation>
    </message>
    <message>
        <source>The highest current, divided by the capacity.</source>
        <translation>Le courant le plus élevé, divisé par la capacité.</translation>
    </message>
    <message>
        <source>The time since the battery was bought.</source>
        <translation>Le temps écoulé depuis l’achat de la batterie.</translation>
    </message>
    <message>
        <source>The days since the battery was last used or discharged.</source>
        <translation>Les jours écoulés depuis la dernière utilisation ou décharge de la batterie.</translation>
    </message>
    <message>
        <source>The flights of all models at the times of its discharges.</source>
        <translation>Les vols de tous les modèles aux heures de ses décharges.</translation>
    </message>
    <message>
        <source>How long these flights took together.</source>
        <translation>La durée totale de ces vols.</translation>
    </message>
    <message>
        <source>What a minute of flight draws from the battery on average.</source>
        <translation>Ce qu’une minute de vol tire de la batterie en moyenne.</translation>
    </message>
    <message>
        <source>Everything that was ever drawn from the battery, guessed values included.</source>
        <translation>Tout ce qui a été tiré de la batterie, valeurs estimées comprises.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 (%2 guessed)</source>
        <translation>%1 (dont %2 estimés)</translation>
    </message>
    <message>
        <source>%1 measured or entered</source>
        <translation>%1 mesurées ou saisies</translation>
    </message>
    <message numerus="yes">
        <source>%n days old</source>
        <translation>
            <numerusform>âgée de %n jour</numerusform>
            <numerusform>âgée de %n jours</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The date of purchase is still to come.</source>
        <translation>La date d’achat est encore à venir.</translation>
    </message>
    <message>
        <source>No date of purchase was entered.</source>
        <translation>Aucune date d’achat n’a été saisie.</translation>
    </message>
    <message>
        <source>No use before today is known.</source>
        <translation>Aucune utilisation avant aujourd’hui n’est connue.</translation>
    </message>
    <message>
        <source>The battery was not used yet.</source>
        <translation>La batterie n’a pas encore été utilisée.</translation>
    </message>
    <message>
        <source>The battery was not discharged yet.</source>
        <translation>La batterie n’a pas encore été déchargée.</translation>
    </message>
    <message>
        <source>The capacity of the battery is not known.</source>
        <translation>La capacité de la batterie n’est pas connue.</translation>
    </message>
    <message>
        <source>No discharge was measured or entered: what was guessed does not count.</source>
        <translation>Aucune décharge n’a été mesurée ni saisie&#xa0;: ce qui a été estimé ne compte pas.</translation>
    </message>
    <message>
        <source>No discharge that was measured or entered has a flight with a duration.</source>
        <translation>Aucune décharge mesurée ou saisie n’a de vol avec une durée.</translation>
    </message>
    <message>
        <source>No current was measured or entered.</source>
        <translation>Aucun courant n’a été mesuré ni saisi.</translation>
    </message>
    <message>
        <source>No used capacity was measured or entered.</source>
        <translation>Aucune capacité utilisée n’a été mesurée ni saisie.</translation>
    </message>
</context>
<context>
    <name>Host::BatteriesTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Il n’y a pas encore de batterie. Ajoutez la première&#xa0;: appuyez sur le bouton du menu, puis sur Édition.</translation>
    </message>
    <message>
        <source>Batteries and their figures</source>
        <translation>Batteries et leurs chiffres</translation>
    </message>
    <message>
        <source>Batteries, %1</source>
        <translation>Batteries, %1</translation>
    </message>
</context>
<context>
    <name>Host::BatteryPlot</name>
    <message>
        <source>As a &amp;table</source>
        <translation>En &amp;tableau</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>&amp;Graphique&#xa0;:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Ce que montre le graphique</translation>
    </message>
    <message>
        <source>Shows the discharges of the battery as a table</source>
        <translation>Affiche les décharges de la batterie sous forme de tableau</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Décharges</translation>
    </message>
    <message>
        <source>Choose a battery to see what became of it over time.</source>
        <translation>Choisissez une batterie pour voir son évolution dans le temps.</translation>
    </message>
    <message>
        <source>“%1” was never discharged. Record a flight with it: click its card.</source>
        <translation>«&#xa0;%1&#xa0;» n’a jamais été déchargée. Enregistrez un vol avec elle&#xa0;: cliquez sur sa carte.</translation>
    </message>
    <message>
        <source>No discharge of “%1” has a time and this figure: there is nothing to plot.</source>
        <translation>Aucune décharge de «&#xa0;%1&#xa0;» n’a à la fois une heure et cette valeur&#xa0;: il n’y a rien à tracer.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>This is shown once the radio&apos;s logs of five flights with “%1” tell it.</source>
        <translation>Ceci s’affiche dès que les journaux de la radio le donnent pour cinq vols avec «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Host::CardWatch</name>
    <message>
        <source>The card “%1” holds 1 radio log that is not imported yet.</source>
        <translation>La carte «&#xa0;%1&#xa0;» contient 1 journal de radio qui n’est pas encore importé.</translation>
    </message>
    <message numerus="yes">
        <source>The card “%1” holds %n radio logs that are not imported yet.</source>
        <translation>
            <numerusform>La carte «&#xa0;%1&#xa0;» contient %n journal de radio qui n’est pas encore importé.</numerusform>
            <numerusform>La carte «&#xa0;%1&#xa0;» contient %n journaux de radio qui ne sont pas encore importés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Plus tard</translation>
    </message>
</context>
<context>
    <name>Host::ColumnsDialog</name>
    <message>
        <source>Columns of a Radio Log</source>
        <translation>Colonnes d’un journal de radio</translation>
    </message>
    <message>
        <source>“%1” has columns that are not known.</source>
        <translation>«&#xa0;%1&#xa0;» a des colonnes inconnues.</translation>
    </message>
    <message>
        <source>“%1” and 1 more log have columns that are not known.</source>
        <translation>«&#xa0;%1&#xa0;» et 1 autre journal ont des colonnes inconnues.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” and %n more logs have columns that are not known.</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» et %n autre journal ont des colonnes inconnues.</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» et %n autres journaux ont des colonnes inconnues.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 Choose those that tell of the battery, or “None”. Your choice is remembered for all logs with these columns.</source>
        <translation>%1 Choisissez celles qui concernent la batterie, ou «&#xa0;Aucune&#xa0;». Votre choix est retenu pour tous les journaux qui ont ces colonnes.</translation>
    </message>
    <message>
        <source>C&amp;onsumption (mAh):</source>
        <translation>C&amp;onsommation (mAh)&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;urrent (A):</source>
        <translation>&amp;Courant (A)&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Volts of the battery:</source>
        <translation>&amp;Tension de la batterie&#xa0;:</translation>
    </message>
    <message>
        <source>Some &amp;values of this log:</source>
        <translation>Quelques &amp;valeurs de ce journal&#xa0;:</translation>
    </message>
    <message>
        <source>Use &amp;These</source>
        <translation>&amp;Utiliser</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Valeur %1</translation>
    </message>
    <message>
        <source>Some values of this log</source>
        <translation>Quelques valeurs de ce journal</translation>
    </message>
    <message>
        <source>One column cannot tell two things.</source>
        <translation>Une même colonne ne peut pas indiquer deux choses.</translation>
    </message>
</context>
<context>
    <name>Host::ConflictOffer</name>
    <message>
        <source>“%1” is another version of this logbook: two computers have changed it, and the program that synchronises the folder has kept both. What it holds is not in this logbook yet.</source>
        <translation>«&#xa0;%1&#xa0;» est une autre version de ce carnet&#xa0;: deux ordinateurs l’ont modifié, et le programme qui synchronise le dossier a conservé les deux versions. Son contenu n’est pas encore dans ce carnet.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Fusionner…</translation>
    </message>
    <message>
        <source>The versions are compared…</source>
        <translation>Comparaison des versions…</translation>
    </message>
    <message>
        <source>The logbook cannot be changed now. Record the flight on the discharge page first, or see the messages above the logbook.</source>
        <translation>Le carnet ne peut pas être modifié pour l’instant. Enregistrez d’abord le vol sur la page de décharge, ou voyez les messages au-dessus du carnet.</translation>
    </message>
    <message>
        <source>“%1” cannot be read now. Try again later.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu pour l’instant. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Merged with another version</source>
        <translation>Fusion avec une autre version</translation>
    </message>
    <message>
        <source>Merged with “%1”.</source>
        <translation>Carnet fusionné avec «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The file cannot be put aside: %1.</source>
        <translation>Le fichier ne peut pas être mis de côté&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>There are %n such versions.</source>
        <translation>
            <numerusform>Il y a %n version de ce genre.</numerusform>
            <numerusform>Il y a %n versions de ce genre.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::CopiesModel</name>
    <message>
        <source>not whole: %1</source>
        <translation>pas intacte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Créée</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Compared with now</source>
        <translation>Comparée à maintenant</translation>
    </message>
</context>
<context>
    <name>Host::DifferencesModel</name>
    <message>
        <source>not there</source>
        <translation>n’y figure pas</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>In this copy</source>
        <translation>Dans cette copie</translation>
    </message>
    <message>
        <source>In the logbook now</source>
        <translation>Dans le carnet actuel</translation>
    </message>
</context>
<context>
    <name>Host::DischargesModel</name>
    <message>
        <source>Not entered</source>
        <translation>Non saisi</translation>
    </message>
    <message>
        <source>Guessed</source>
        <translation>Estimé</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Saisi</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesuré</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Used (mAh)</source>
        <translation>Utilisé (mAh)</translation>
    </message>
    <message>
        <source>Used (%)</source>
        <translation>Utilisé (%)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>Courant (A)</translation>
    </message>
    <message>
        <source>Load (C)</source>
        <translation>Taux (C)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
</context>
<context>
    <name>Host::ExportDialog</name>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Le carnet ne peut pas être lu pour l’instant. Libérez de l’espace, puis réessayez.</translation>
    </message>
    <message>
        <source>Only these &amp;batteries</source>
        <translation>Seulement ces &amp;batteries</translation>
    </message>
    <message>
        <source>Only these &amp;models</source>
        <translation>Seulement ces &amp;modèles</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Progress of the export</source>
        <translation>Avancement de l’exportation</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>F&amp;rom</source>
        <translation>D&amp;u</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Au</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Preview: the first %n rows of each table</source>
        <translation>
            <numerusform>A&amp;perçu&#xa0;: %n ligne de chaque tableau</numerusform>
            <numerusform>A&amp;perçu&#xa0;: les %n premières lignes de chaque tableau</numerusform>
        </translation>
    </message>
    <message>
        <source>The first day is later than the last one. Change one of them.</source>
        <translation>Le premier jour est postérieur au dernier. Modifiez l’un des deux.</translation>
    </message>
    <message>
        <source>Export the Logbook</source>
        <translation>Exporter le carnet</translation>
    </message>
    <message>
        <source>Workbook (*.xlsx)</source>
        <translation>Classeur (*.xlsx)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export Five Files into a Folder</source>
        <translation>Exporter cinq fichiers dans un dossier</translation>
    </message>
    <message>
        <source>The folder has files of these names already.</source>
        <translation>Le dossier contient déjà des fichiers portant ces noms.</translation>
    </message>
    <message>
        <source>The export replaces %1.</source>
        <translation>L’exportation remplace %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The export was stopped. Nothing was written.</source>
        <translation>L’exportation a été arrêtée. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Choose another place, or free some space, and export again.</source>
        <translation>Choisissez un autre emplacement ou libérez de l’espace, puis recommencez l’exportation.</translation>
    </message>
    <message>
        <source>The logbook was exported to “%1”.</source>
        <translation>Le carnet a été exporté dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Texts that are too long for a cell (32,767 characters) were cut: %1.</source>
        <translation>Les textes trop longs pour une cellule (32&#x202f;767 caractères) ont été coupés&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>Host::ExportPreview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>First rows of %1</source>
        <translation>Premières lignes de %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Host::FilterBar</name>
    <message>
        <source>Search flights</source>
        <translation>Rechercher des vols</translation>
    </message>
    <message>
        <source>Only flights of the model</source>
        <translation>Seulement les vols du modèle</translation>
    </message>
    <message>
        <source>All models</source>
        <translation>Tous les modèles</translation>
    </message>
    <message>
        <source>Only flights with the battery</source>
        <translation>Seulement les vols avec la batterie</translation>
    </message>
    <message>
        <source>All batteries</source>
        <translation>Toutes les batteries</translation>
    </message>
    <message>
        <source>Only flights at the location</source>
        <translation>Seulement les vols sur le lieu</translation>
    </message>
    <message>
        <source>All locations</source>
        <translation>Tous les lieux</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookDialog</name>
    <message>
        <source>Flight Book</source>
        <translation>Carnet de vol</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>D&amp;u&#xa0;:</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Premier jour</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Au&#xa0;:</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
    <message>
        <source>Models in the book</source>
        <translation>Modèles dans le carnet de vol</translation>
    </message>
    <message>
        <source>&amp;Models:</source>
        <translation>&amp;Modèles&#xa0;:</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>Paper of the PDF file</source>
        <translation>Papier du fichier PDF</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papier&#xa0;:</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1&#xa0;: limité</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Pa&amp;ge&#xa0;:</translation>
    </message>
    <message>
        <source>Page that is shown</source>
        <translation>Page affichée</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Le premier jour est postérieur au dernier.</translation>
    </message>
    <message>
        <source>Flights: %1, time in the air: %2.</source>
        <translation>Vols&#xa0;: %1, temps de vol&#xa0;: %2.</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>The flight book was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Le carnet de vol n’a pas été imprimé&#xa0;: l’imprimante ou son fichier n’est pas accessible en écriture. Choisissez une autre destination.</translation>
    </message>
    <message>
        <source>The flight book is printed…</source>
        <translation>Impression du carnet de vol…</translation>
    </message>
    <message>
        <source>The flight book is saved…</source>
        <translation>Enregistrement du carnet de vol…</translation>
    </message>
    <message>
        <source>Save the Flight Book</source>
        <translation>Enregistrer le carnet de vol</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Document PDF (*.pdf)</translation>
    </message>
    <message>
        <source>it is a logbook</source>
        <translation>c’est un carnet</translation>
    </message>
    <message>
        <source>The flight book is saved in “%1”.</source>
        <translation>Le carnet de vol est enregistré dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The flight book was not saved in “%1”: %2. Choose another place for it.</source>
        <translation>Le carnet de vol n’a pas été enregistré dans «&#xa0;%1&#xa0;»&#xa0;: %2. Choisissez-lui un autre emplacement.</translation>
    </message>
</context>
<context>
    <name>Host::FlightBookPreview</name>
    <message>
        <source>Preview of page %1</source>
        <translation>Aperçu de la page %1</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Pas d’aperçu</translation>
    </message>
</context>
<context>
    <name>Host::FlightDialog</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Add a Flight</source>
        <translation>Ajouter un vol</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Flight added</source>
        <translation>Vol ajouté</translation>
    </message>
</context>
<context>
    <name>Host::FlightEditDialog</name>
    <message>
        <source>Edit a Flight</source>
        <translation>Modifier un vol</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>Host::FlightsModel</name>
    <message>
        <source>not entered</source>
        <translation>non saisi</translation>
    </message>
    <message>
        <source>guessed: what a capture presets for the battery</source>
        <translation>estimé&#xa0;: ce que le relevé propose pour la batterie</translation>
    </message>
    <message>
        <source>measured: from a radio&apos;s log</source>
        <translation>mesuré&#xa0;: d’après le journal d’une radio</translation>
    </message>
    <message>
        <source>entered</source>
        <translation>saisi</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>no discharge at the time of this flight</source>
        <translation>aucune décharge à l’heure de ce vol</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batteries</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Max. A</source>
        <translation>Max. A</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTab</name>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Move…</source>
        <translation>Dé&amp;placer…</translation>
    </message>
    <message>
        <source>&amp;Tidy Up…</source>
        <translation>&amp;Nettoyer…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>There is no model yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Il n’y a pas encore de modèle. Ajoutez le premier&#xa0;: appuyez sur le bouton du menu, puis sur Édition.</translation>
    </message>
    <message>
        <source>There is no flight yet. Add one here, or click the card of a charged battery when you have flown it.</source>
        <translation>Il n’y a pas encore de vol. Ajoutez-en un ici, ou cliquez sur la carte d’une batterie chargée une fois que vous l’avez utilisée en vol.</translation>
    </message>
    <message>
        <source>Flights: %1</source>
        <translation>Vols&#xa0;: %1</translation>
    </message>
    <message>
        <source>Flights: %1 of %2</source>
        <translation>Vols&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Delete this flight?</source>
        <translation>Supprimer ce vol&#x202f;?</translation>
    </message>
    <message numerus="yes">
        <source>Delete these %n flights?</source>
        <translation>
            <numerusform>Supprimer %n vol&#x202f;?</numerusform>
            <numerusform>Supprimer ces %n vols&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Discharges at the same times can be deleted with them; the cycles of the batteries are then reduced. The models&apos; numbers of flights stay as they are. This can be undone.</source>
        <translation>Les décharges aux mêmes heures peuvent être supprimées aussi&#x202f;; les cycles des batteries sont alors réduits. Les nombres de vols des modèles restent inchangés. Cette action peut être annulée.</translation>
    </message>
    <message>
        <source>Delete With Discharges</source>
        <translation>Supprimer avec les décharges</translation>
    </message>
    <message>
        <source>Delete Flights Only</source>
        <translation>Supprimer les vols seuls</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Flight deleted</source>
        <translation>Vol supprimé</translation>
    </message>
    <message numerus="yes">
        <source>%n flights deleted</source>
        <translation>
            <numerusform>%n vol supprimé</numerusform>
            <numerusform>%n vols supprimés</numerusform>
        </translation>
    </message>
    <message>
        <source>Flight moved</source>
        <translation>Vol déplacé</translation>
    </message>
    <message numerus="yes">
        <source>%n flights moved</source>
        <translation>
            <numerusform>%n vol déplacé</numerusform>
            <numerusform>%n vols déplacés</numerusform>
        </translation>
    </message>
    <message>
        <source>No flight stands twice. A flight is taken for a double when it is at most 5 s after another one of the same model and the same in everything else.</source>
        <translation>Aucun vol ne figure en double. Un vol est tenu pour un double lorsqu’il suit de 5&#xa0;s au plus un autre vol du même modèle et que tout le reste est identique.</translation>
    </message>
    <message>
        <source>Flights that stood twice removed</source>
        <translation>Vols en double retirés</translation>
    </message>
    <message>
        <source>Ed&amp;it…</source>
        <translation>&amp;Modifier…</translation>
    </message>
</context>
<context>
    <name>Host::FlightsTable</name>
    <message>
        <source>Flights</source>
        <translation>Vols</translation>
    </message>
</context>
<context>
    <name>Host::HealthModel</name>
    <message>
        <source>Counter (mAh)</source>
        <translation>Compteur (mAh)</translation>
    </message>
    <message>
        <source>Current × time (mAh)</source>
        <translation>Courant × temps (mAh)</translation>
    </message>
    <message>
        <source>At rest before (V)</source>
        <translation>Au repos avant (V)</translation>
    </message>
    <message>
        <source>At rest after (V)</source>
        <translation>Au repos après (V)</translation>
    </message>
    <message>
        <source>Lowest (V)</source>
        <translation>Minimum (V)</translation>
    </message>
    <message>
        <source>Resistance (mΩ)</source>
        <translation>Résistance (mΩ)</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capacité (mAh)</translation>
    </message>
    <message>
        <source>What the radio&apos;s counter of the consumption says.</source>
        <translation>Ce qu’indique le compteur de consommation de la radio.</translation>
    </message>
    <message>
        <source>The consumption as the logged current adds up over time.</source>
        <translation>La consommation qui résulte du courant enregistré, cumulé dans le temps.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A before the flight.</source>
        <translation>La tension de la batterie entière à moins de 1 A avant le vol.</translation>
    </message>
    <message>
        <source>The voltage of the whole battery at less than 1 A after the flight.</source>
        <translation>La tension de la batterie entière à moins de 1 A après le vol.</translation>
    </message>
    <message>
        <source>The lowest voltage of the whole battery in flight.</source>
        <translation>La tension la plus basse de la batterie entière en vol.</translation>
    </message>
    <message>
        <source>The internal resistance of the whole battery: by how much the voltage falls with each ampere.</source>
        <translation>La résistance interne de la batterie entière&#xa0;: de combien la tension chute par ampère.</translation>
    </message>
    <message>
        <source>An estimate: the consumption, and the charge that the voltages at rest before and after the flight stand for.</source>
        <translation>Une estimation&#xa0;: la consommation, et l’état de charge que traduisent les tensions au repos avant et après le vol.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesuré</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <source>Spread (±)</source>
        <translation>Dispersion (±)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vols</translation>
    </message>
    <message>
        <source>What the radio&apos;s logs tell of the flights with this battery.</source>
        <translation>Ce que les journaux de la radio indiquent sur les vols avec cette batterie.</translation>
    </message>
    <message>
        <source>Half of the flights show less than this, half of them more.</source>
        <translation>La moitié des vols donne moins que cette valeur, l’autre moitié plus.</translation>
    </message>
    <message>
        <source>Half of the flights lie within so much around the median.</source>
        <translation>La moitié des vols s’écarte au plus d’autant de la médiane.</translation>
    </message>
    <message>
        <source>How many flights tell it.</source>
        <translation>Le nombre de vols qui la donnent.</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Shown once five measured flights tell it.</source>
        <translation>Affichée dès que cinq vols mesurés la donnent.</translation>
    </message>
    <message>
        <source>No log tells it.</source>
        <translation>Aucun journal ne l’indique.</translation>
    </message>
</context>
<context>
    <name>Host::HealthView</name>
    <message>
        <source>Measured values of the battery</source>
        <translation>Valeurs mesurées de la batterie</translation>
    </message>
</context>
<context>
    <name>Host::ImportDialog</name>
    <message>
        <source>Choose &amp;Logs…</source>
        <translation>Choisir &amp;journaux…</translation>
    </message>
    <message>
        <source>Choose &amp;Folder or Card…</source>
        <translation>Choisir dossier ou &amp;carte…</translation>
    </message>
    <message>
        <source>&amp;Replace values that were entered</source>
        <translation>&amp;Remplacer les valeurs saisies</translation>
    </message>
    <message>
        <source>&amp;Not imported:</source>
        <translation>&amp;Non importés&#xa0;:</translation>
    </message>
    <message>
        <source>Import Radio Logs</source>
        <translation>Importer des journaux de radio</translation>
    </message>
    <message>
        <source>Choose Logs of Radios</source>
        <translation>Choisir des journaux de radio</translation>
    </message>
    <message>
        <source>Logs (*.csv *.CSV)</source>
        <translation>Journaux (*.csv *.CSV)</translation>
    </message>
    <message>
        <source>Choose a Folder with Logs</source>
        <translation>Choisir un dossier contenant des journaux</translation>
    </message>
    <message>
        <source>Choose logs that a radio with EdgeTX or OpenTX has written, or the folder or card that they are on. Nothing on a card is ever changed.</source>
        <translation>Choisissez des journaux écrits par une radio sous EdgeTX ou OpenTX, ou le dossier ou la carte où ils se trouvent. Rien n’est jamais modifié sur une carte.</translation>
    </message>
    <message>
        <source>Discharges in the logs</source>
        <translation>Décharges dans les journaux</translation>
    </message>
    <message>
        <source>Files that are not imported</source>
        <translation>Fichiers non importés</translation>
    </message>
    <message>
        <source>Progress of the reading</source>
        <translation>Avancement de la lecture</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>The logbook cannot be read now. Free some space, and try again.</source>
        <translation>Le carnet ne peut pas être lu pour l’instant. Libérez de l’espace, puis réessayez.</translation>
    </message>
    <message>
        <source>The reading was stopped. What was read before is still listed.</source>
        <translation>La lecture a été arrêtée. Ce qui a été lu auparavant reste listé.</translation>
    </message>
    <message>
        <source>There is no discharge in these logs.</source>
        <translation>Il n’y a aucune décharge dans ces journaux.</translation>
    </message>
    <message>
        <source>What is new is added when you tick it. To choose its model or battery, double-click there, or press F2.</source>
        <translation>Ce qui est nouveau est ajouté si vous le cochez. Pour choisir le modèle ou la batterie, double-cliquez à cet endroit ou appuyez sur F2.</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h slow</source>
        <translation>Corriger l’&amp;horloge de la radio&#xa0;: elle semble retarder de %1&#xa0;h</translation>
    </message>
    <message>
        <source>&amp;Correct the radio&apos;s clock: it seems to be %1 h fast</source>
        <translation>Corriger l’&amp;horloge de la radio&#xa0;: elle semble avancer de %1&#xa0;h</translation>
    </message>
    <message>
        <source>“%1” is no log of a radio: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un journal de radio&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” holds no values.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient aucune valeur.</translation>
    </message>
    <message>
        <source>Imported 1 radio log</source>
        <translation>1 journal de radio importé</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n radio logs</source>
        <translation>
            <numerusform>%n journal de radio importé</numerusform>
            <numerusform>%n journaux de radio importés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. Flights filled: %2; discharges added: %3. Undo in the menu Edit takes all of it back.</source>
        <translation>%1. Vols complétés&#xa0;: %2&#x202f;; décharges ajoutées&#xa0;: %3. Annuler, dans le menu Édition, défait le tout.</translation>
    </message>
    <message>
        <source>Nobody has chosen the columns that tell of the battery.</source>
        <translation>Personne n’a choisi les colonnes qui concernent la batterie.</translation>
    </message>
</context>
<context>
    <name>Host::ImportModel</name>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Ce qui se passera</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>mAh</source>
        <translation>mAh</translation>
    </message>
    <message>
        <source>Maximum A</source>
        <translation>Maximum A</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>Host::Languages</name>
    <message>
        <source>English</source>
        <comment>this language, in itself</comment>
        <translation>Français</translation>
    </message>
</context>
<context>
    <name>Host::MainWindow</name>
    <message>
        <source>&amp;Logbook</source>
        <translation>&amp;Carnet</translation>
    </message>
    <message>
        <source>&amp;Open Folder…</source>
        <translation>&amp;Ouvrir un dossier…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Dossiers &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Import Radio Logs…</source>
        <translation>&amp;Importer des journaux de radio…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>&amp;Flight Book (print, PDF)…</source>
        <translation>Carnet de &amp;vol (impression, PDF)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Re&amp;nommer…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>&amp;Side Panel</source>
        <translation>&amp;Panneau latéral</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>&amp;About Voltbok</source>
        <translation>À &amp;propos de Voltbok</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>No other folder yet</source>
        <translation>Aucun autre dossier</translation>
    </message>
    <message>
        <source>Open the Logbook in a Folder</source>
        <translation>Ouvrir le carnet d’un dossier</translation>
    </message>
    <message>
        <source>Voltbok %1, a battery and flight logbook for radio-controlled models.</source>
        <translation>Voltbok %1, un carnet de batteries et de vols pour modèles radiocommandés.</translation>
    </message>
    <message>
        <source>Voltbok is free software under the GNU General Public License, version 3 or later. Linked with Qt Charts, which is under version 3, the whole is under version 3.

This logbook is kept in “%1”.</source>
        <translation>Voltbok est un logiciel libre sous licence publique générale GNU, version 3 ou ultérieure. Lié à Qt Charts, qui est sous la version 3, l’ensemble est sous la version 3.

Ce carnet est conservé dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The flight on this page is not recorded.</source>
        <translation>Le vol de cette page n’est pas enregistré.</translation>
    </message>
    <message>
        <source>What you entered on this page is not saved.</source>
        <translation>Ce que vous avez saisi sur cette page n’est pas enregistré.</translation>
    </message>
    <message>
        <source>Go back to record it, or leave the page without it.</source>
        <translation>Revenez pour l’enregistrer, ou quittez la page sans l’enregistrer.</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Voltbok - sample logbook</source>
        <translation>Voltbok - carnet d’exemple</translation>
    </message>
    <message>
        <source>The logbook is opened…</source>
        <translation>Ouverture du carnet…</translation>
    </message>
    <message>
        <source>The settings cannot be saved: there is no permission to write “%1”. What you choose will be forgotten. Change the permissions of this file and its folder.</source>
        <translation>Les réglages ne peuvent pas être enregistrés&#xa0;: vous n’avez pas le droit d’écrire «&#xa0;%1&#xa0;». Vos choix seront oubliés. Changez les droits de ce fichier et de son dossier.</translation>
    </message>
    <message>
        <source>The logbook is now kept in “%1”. Open this folder the next time, too.</source>
        <translation>Le carnet est désormais conservé dans «&#xa0;%1&#xa0;». Ouvrez ce dossier la prochaine fois aussi.</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Langue du &amp;système</translation>
    </message>
    <message>
        <source>This logbook is empty. Add your first battery, look around in the sample, or choose the folder of a logbook that you have already.</source>
        <translation>Ce carnet est vide. Ajoutez votre première batterie, découvrez l’exemple, ou choisissez le dossier d’un carnet que vous avez déjà.</translation>
    </message>
    <message>
        <source>Add a Battery</source>
        <translation>Ajouter une batterie</translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation>Ouvrir l’exemple</translation>
    </message>
    <message>
        <source>Choose a Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>&amp;Backups…</source>
        <translation>&amp;Sauvegardes…</translation>
    </message>
</context>
<context>
    <name>Host::ManualWindow</name>
    <message>
        <source>Voltbok Manual</source>
        <translation>Manuel de Voltbok</translation>
    </message>
</context>
<context>
    <name>Host::MergeDialog</name>
    <message>
        <source>without a time</source>
        <translation>sans heure</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>Batterie %1</translation>
    </message>
    <message>
        <source>Model %1</source>
        <translation>Modèle %1</translation>
    </message>
    <message>
        <source>Discharge of %1, %2</source>
        <translation>Décharge de %1, %2</translation>
    </message>
    <message>
        <source>Flight of %1, %2</source>
        <translation>Vol de %1, %2</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capacité (mAh)</translation>
    </message>
    <message>
        <source>Discharge rating (C)</source>
        <translation>Taux de décharge (C)</translation>
    </message>
    <message>
        <source>Charge rating (C)</source>
        <translation>Taux de charge (C)</translation>
    </message>
    <message>
        <source>Purchased</source>
        <translation>Achat</translation>
    </message>
    <message>
        <source>Cycles</source>
        <translation>Cycles</translation>
    </message>
    <message>
        <source>Charged</source>
        <translation>Chargée</translation>
    </message>
    <message>
        <source>Last use</source>
        <translation>Dernier usage</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Déchargé (mAh)</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Courant maximal (A)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vols</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Last update</source>
        <translation>Dernière modification</translation>
    </message>
    <message>
        <source>Duration (s)</source>
        <translation>Durée (s)</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Temperature (°C)</source>
        <translation>Température (°C)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune valeur</translation>
    </message>
    <message>
        <source>batteries: %1</source>
        <translation>batteries&#xa0;: %1</translation>
    </message>
    <message>
        <source>models: %1</source>
        <translation>modèles&#xa0;: %1</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>lieux&#xa0;: %1</translation>
    </message>
    <message>
        <source>discharges: %1</source>
        <translation>décharges&#xa0;: %1</translation>
    </message>
    <message>
        <source>flights: %1</source>
        <translation>vols&#xa0;: %1</translation>
    </message>
    <message>
        <source>Added are %1.</source>
        <translation>Éléments ajoutés (%1).</translation>
    </message>
    <message>
        <source>Removed, as they were there, are %1.</source>
        <translation>Éléments supprimés, comme dans l’autre version (%1).</translation>
    </message>
    <message>
        <source>Values changed: %1.</source>
        <translation>Valeurs modifiées&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>“%1” is another version of this logbook, which was changed on another computer.</source>
        <translation>«&#xa0;%1&#xa0;» est une autre version de ce carnet, modifiée sur un autre ordinateur.</translation>
    </message>
    <message>
        <source>This logbook holds everything that it holds.</source>
        <translation>Ce carnet contient déjà tout ce que contient cette version.</translation>
    </message>
    <message>
        <source>No earlier version was found that both come from. So nothing is removed, and you choose wherever the two differ.</source>
        <translation>Aucune version antérieure dont les deux proviennent n’a été trouvée. Rien n’est donc supprimé, et vous choisissez partout où les deux diffèrent.</translation>
    </message>
    <message>
        <source>Both have changed these &amp;values. Tick those that are to be the other version’s; the others stay as they are in this logbook.</source>
        <translation>Les deux versions ont modifié ces &amp;valeurs. Cochez celles à reprendre de l’autre version&#xa0;; les autres restent telles quelles dans ce carnet.</translation>
    </message>
    <message>
        <source>The other version is then kept among the copies of the logbook, and Undo in the menu Edit takes the merge back.</source>
        <translation>L’autre version est ensuite conservée parmi les copies du carnet, et Annuler, dans le menu Édition, défait la fusion.</translation>
    </message>
    <message>
        <source>Put Aside</source>
        <translation>Mettre de côté</translation>
    </message>
    <message>
        <source>Values that both have changed</source>
        <translation>Valeurs modifiées des deux côtés</translation>
    </message>
    <message>
        <source>Take the other’s</source>
        <translation>Prendre l’autre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>This logbook</source>
        <translation>Ce carnet</translation>
    </message>
    <message>
        <source>Other version</source>
        <translation>Autre version</translation>
    </message>
</context>
<context>
    <name>Host::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Fermer ce message</translation>
    </message>
</context>
<context>
    <name>Host::MoveDialog</name>
    <message>
        <source>(Stay)</source>
        <translation>(Inchangé)</translation>
    </message>
    <message>
        <source>Move Flights</source>
        <translation>Déplacer des vols</translation>
    </message>
    <message>
        <source>To the &amp;model</source>
        <translation>Vers le &amp;modèle</translation>
    </message>
    <message>
        <source>&amp;Discharges of the battery</source>
        <translation>&amp;Décharges de la batterie</translation>
    </message>
    <message>
        <source>To the &amp;battery</source>
        <translation>Vers la &amp;batterie</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
</context>
<context>
    <name>Host::OpenLogbook</name>
    <message>
        <source>Nothing was changed: what radio logs tell cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Rien n’a été modifié&#xa0;: les données des journaux de radio ne peuvent pas être écrites&#xa0;: %1. Veillez à ce que «&#xa0;%2&#xa0;» soit accessible en écriture, puis réessayez.</translation>
    </message>
    <message>
        <source>Nothing was changed: there is no space left in “%1”. Free some, and try again.</source>
        <translation>Rien n’a été modifié&#xa0;: il ne reste plus d’espace dans «&#xa0;%1&#xa0;». Libérez-en, puis réessayez.</translation>
    </message>
    <message>
        <source>Nothing was changed: you have cancelled it.</source>
        <translation>Rien n’a été modifié&#xa0;: vous avez annulé.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook has changed meanwhile. Look at it again, and repeat what you did.</source>
        <translation>Rien n’a été modifié&#xa0;: le carnet a changé entre-temps. Regardez-le de nouveau et recommencez.</translation>
    </message>
    <message>
        <source>The logbook is changed…</source>
        <translation>Modification du carnet…</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot hold what you entered. Leave out control characters, and times that the clock does not have.</source>
        <translation>Rien n’a été modifié&#xa0;: le fichier du carnet ne peut pas contenir ce que vous avez saisi. Retirez les caractères de contrôle et les heures qui n’existent pas.</translation>
    </message>
    <message>
        <source>Record the flight on the discharge page first, or leave that page.</source>
        <translation>Enregistrez d’abord le vol sur la page de décharge, ou quittez cette page.</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file does not hold what this window shows. See the message above the logbook.</source>
        <translation>Rien n’a été modifié&#xa0;: le fichier du carnet ne contient pas ce que cette fenêtre affiche. Voyez le message au-dessus du carnet.</translation>
    </message>
    <message>
        <source>it cannot be read back</source>
        <translation>il ne peut pas être relu</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, and try again.</source>
        <translation>Rien n’a été modifié&#xa0;: le fichier du carnet ne peut pas être écrit&#xa0;: %1. Veillez à ce que «&#xa0;%2&#xa0;» soit accessible en écriture, puis réessayez.</translation>
    </message>
    <message>
        <source>The copy is restored…</source>
        <translation>Restauration de la copie…</translation>
    </message>
    <message>
        <source>Copy restored</source>
        <translation>Copie restaurée</translation>
    </message>
    <message>
        <source>Nothing was changed: the logbook as it is now cannot be copied first: %1. See that the program can write in “%2”, and try again.</source>
        <translation>Rien n’a été modifié&#xa0;: le carnet tel qu’il est maintenant ne peut pas être copié au préalable&#xa0;: %1. Veillez à ce que le programme puisse écrire dans «&#xa0;%2&#xa0;», puis réessayez.</translation>
    </message>
    <message>
        <source>another program has changed it</source>
        <translation>un autre programme l’a modifié</translation>
    </message>
    <message>
        <source>Another program has changed what radio logs tell of the discharges. It is on show now.</source>
        <translation>Un autre programme a modifié ce que les journaux de radio indiquent sur les décharges. Les nouvelles valeurs sont maintenant affichées.</translation>
    </message>
</context>
<context>
    <name>Host::PlotButtons</name>
    <message>
        <source>&amp;Save Plot…</source>
        <translation>E&amp;nregistrer…</translation>
    </message>
    <message>
        <source>Save the plot as a picture (PNG or SVG)</source>
        <translation>Enregistrer le graphique comme image (PNG ou SVG)</translation>
    </message>
    <message>
        <source>&amp;Copy Plot</source>
        <translation>Cop&amp;ier</translation>
    </message>
    <message>
        <source>Copy the plot to the clipboard</source>
        <translation>Copier le graphique dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Print Plot…</source>
        <translation>I&amp;mprimer…</translation>
    </message>
    <message>
        <source>Print the plot</source>
        <translation>Imprimer le graphique</translation>
    </message>
    <message>
        <source>Print T&amp;able…</source>
        <translation>Im&amp;primer tableau…</translation>
    </message>
    <message>
        <source>Print the table above</source>
        <translation>Imprimer le tableau ci-dessus</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>Enregistrer le graphique</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>Image PNG (*.png)</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>Dessin SVG (*.svg)</translation>
    </message>
    <message>
        <source>The plot was not saved: a picture is PNG or SVG. Give it a name that ends with “.png” or “.svg”.</source>
        <translation>Le graphique n’a pas été enregistré&#xa0;: une image est au format PNG ou SVG. Donnez-lui un nom qui se termine par «&#xa0;.png&#xa0;» ou «&#xa0;.svg&#xa0;».</translation>
    </message>
    <message>
        <source>The plot was not saved in “%1”: %2.</source>
        <translation>Le graphique n’a pas été enregistré dans «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The plot was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Le graphique n’a pas été imprimé&#xa0;: l’imprimante ou son fichier n’est pas accessible en écriture. Choisissez une autre destination.</translation>
    </message>
</context>
<context>
    <name>Host::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>When there is something to do</source>
        <translation>Quand il y a quelque chose à faire</translation>
    </message>
</context>
<context>
    <name>Host::RadioLog</name>
    <message>
        <source>It does not begin with the columns Date and Time.</source>
        <translation>Il ne commence pas par les colonnes Date et Time.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Il ne peut pas être lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Il est vide.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>La lecture a été annulée.</translation>
    </message>
    <message>
        <source>Its time jumps in too many places.</source>
        <translation>Son heure fait des sauts en trop d’endroits.</translation>
    </message>
    <message>
        <source>Most of its rows have more or fewer fields than its header.</source>
        <translation>La plupart de ses lignes ont plus ou moins de champs que son en-tête.</translation>
    </message>
    <message>
        <source>Its rows do not begin with a date and a time.</source>
        <translation>Ses lignes ne commencent pas par une date et une heure.</translation>
    </message>
    <message>
        <source>Most of its rows do not begin with a date and a time.</source>
        <translation>La plupart de ses lignes ne commencent pas par une date et une heure.</translation>
    </message>
    <message>
        <source>It has a header, but no rows.</source>
        <translation>Il a un en-tête, mais aucune ligne.</translation>
    </message>
</context>
<context>
    <name>Host::RenameDialog</name>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>Élé&amp;ment</translation>
    </message>
    <message>
        <source>&amp;Present name</source>
        <translation>Nom &amp;actuel</translation>
    </message>
    <message>
        <source>&amp;New name</source>
        <translation>&amp;Nouveau nom</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Il n’y en a pas encore.</translation>
    </message>
    <message>
        <source>There are several of this name. Only the chosen one is renamed; models and flights that name it keep the other.</source>
        <translation>Plusieurs portent ce nom. Seul l’élément choisi est renommé&#x202f;; les modèles et les vols qui le mentionnent gardent l’autre.</translation>
    </message>
    <message>
        <source>It is renamed everywhere at once.</source>
        <translation>Il est renommé partout à la fois.</translation>
    </message>
    <message>
        <source>Battery %1 renamed</source>
        <translation>Batterie %1 renommée</translation>
    </message>
    <message>
        <source>Model %1 renamed</source>
        <translation>Modèle %1 renommé</translation>
    </message>
    <message>
        <source>Location %1 renamed</source>
        <translation>Lieu %1 renommé</translation>
    </message>
</context>
<context>
    <name>Host::SaveCare</name>
    <message>
        <source>it cannot be read back</source>
        <translation>il ne peut pas être relu</translation>
    </message>
    <message>
        <source>The logbook is not saved.</source>
        <translation>Le carnet n’est pas enregistré.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and try again or keep the logbook elsewhere.</source>
        <translation>Ce que vous avez enregistré en dernier serait perdu. Revenez, puis réessayez ou conservez le carnet ailleurs.</translation>
    </message>
    <message>
        <source>What you recorded last would be lost. Go back, and restore the last state or keep the logbook elsewhere.</source>
        <translation>Ce que vous avez enregistré en dernier serait perdu. Revenez, puis restaurez le dernier état ou conservez le carnet ailleurs.</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>il est absent</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>le disque signale une erreur</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Restore Last State</source>
        <translation>Restaurer le dernier état</translation>
    </message>
    <message>
        <source>Keep Elsewhere…</source>
        <translation>Conserver ailleurs…</translation>
    </message>
    <message>
        <source>Nothing can be saved in “%1”: %2. See that the file can be written, or keep the logbook in another folder, before you record anything.</source>
        <translation>Rien ne peut être enregistré dans «&#xa0;%1&#xa0;»&#xa0;: %2. Veillez à ce que le fichier soit accessible en écriture, ou conservez le carnet dans un autre dossier, avant d’enregistrer quoi que ce soit.</translation>
    </message>
    <message>
        <source>The logbook is not saved in “%1”: %2. This window still shows everything. See that the file can be written, then try again; or keep the logbook in another folder.</source>
        <translation>Le carnet n’est pas enregistré dans «&#xa0;%1&#xa0;»&#xa0;: %2. Cette fenêtre affiche encore tout. Veillez à ce que le fichier soit accessible en écriture, puis réessayez&#x202f;; ou conservez le carnet dans un autre dossier.</translation>
    </message>
    <message>
        <source>Your last change could not be saved in “%1”: %2. File and window are as they were before. See that the file can be written, or keep the logbook in another folder; then enter the change again.</source>
        <translation>Votre dernière modification n’a pas pu être enregistrée dans «&#xa0;%1&#xa0;»&#xa0;: %2. Le fichier et la fenêtre sont comme avant. Veillez à ce que le fichier soit accessible en écriture, ou conservez le carnet dans un autre dossier&#x202f;; puis saisissez de nouveau la modification.</translation>
    </message>
    <message>
        <source>The logbook could not be saved in “%1”: %2. This window shows less than you have recorded. Restore the last state, or keep it in another folder; then enter your last change again.</source>
        <translation>Le carnet n’a pas pu être enregistré dans «&#xa0;%1&#xa0;»&#xa0;: %2. Cette fenêtre affiche moins que ce que vous avez enregistré. Restaurez le dernier état, ou conservez-le dans un autre dossier&#x202f;; puis saisissez de nouveau votre dernière modification.</translation>
    </message>
    <message>
        <source>it is not written to its end</source>
        <translation>il n’est pas écrit jusqu’au bout</translation>
    </message>
    <message>
        <source>The logbook still cannot be saved: %1.</source>
        <translation>Le carnet ne peut toujours pas être enregistré&#xa0;: %1.</translation>
    </message>
    <message>
        <source>there is no whole copy</source>
        <translation>il n’y a pas de copie intacte</translation>
    </message>
    <message>
        <source>The last state cannot be restored: %1. Nothing was changed. Free some space, or keep the logbook elsewhere.</source>
        <translation>Le dernier état ne peut pas être restauré&#xa0;: %1. Rien n’a été modifié. Libérez de l’espace, ou conservez le carnet ailleurs.</translation>
    </message>
    <message>
        <source>The last state is restored.</source>
        <translation>Le dernier état est restauré.</translation>
    </message>
    <message>
        <source>The last state is restored. The file that was there is kept as “%1”.</source>
        <translation>Le dernier état est restauré. Le fichier qui s’y trouvait est conservé sous le nom «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Keep the Logbook in Another Folder</source>
        <translation>Conserver le carnet dans un autre dossier</translation>
    </message>
    <message>
        <source>There is a logbook in “%1” already. Choose an empty folder.</source>
        <translation>Il y a déjà un carnet dans «&#xa0;%1&#xa0;». Choisissez un dossier vide.</translation>
    </message>
    <message>
        <source>there is no whole state of it</source>
        <translation>il n’en existe pas d’état intact</translation>
    </message>
    <message>
        <source>The logbook cannot be kept in “%1”: %2. Choose another folder.</source>
        <translation>Le carnet ne peut pas être conservé dans «&#xa0;%1&#xa0;»&#xa0;: %2. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Leave the Page and Show It</source>
        <translation>Quitter la page et afficher</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is shown as soon as you have recorded or left what you are entering.</source>
        <translation>Un autre programme a modifié le carnet&#xa0;: %1. Sa version s’affiche dès que vous avez enregistré ou abandonné votre saisie.</translation>
    </message>
    <message>
        <source>Show the Other Version</source>
        <translation>Afficher l’autre version</translation>
    </message>
    <message>
        <source>Keep This Version</source>
        <translation>Garder cette version</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. This window holds something that is not saved. Choose which version to go on with; the other one is kept in “%2”.</source>
        <translation>Un autre programme a modifié le carnet&#xa0;: %1. Cette fenêtre contient quelque chose qui n’est pas enregistré. Choisissez la version avec laquelle continuer&#xa0;; l’autre est conservée dans «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The logbook is read again…</source>
        <translation>Relecture du carnet…</translation>
    </message>
    <message>
        <source>Another program has changed the logbook: %1. It is on show now.</source>
        <translation>Un autre programme a modifié le carnet&#xa0;: %1. Sa version est maintenant affichée.</translation>
    </message>
    <message>
        <source>Your last click was not carried out: look at the logbook again, and repeat it.</source>
        <translation>Votre dernier clic n’a pas été exécuté&#xa0;: regardez de nouveau le carnet, puis refaites-le.</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It is kept as “%2”.</source>
        <translation>La version de l’autre programme contient des éléments que cette version de Voltbok ne comprend pas et qu’elle perd à l’enregistrement&#xa0;: %1. Ce fichier est conservé sous le nom «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The version of the other program holds what this version of Voltbok does not understand, and drops when it saves: %1. It cannot be put aside: %2.</source>
        <translation>La version de l’autre programme contient des éléments que cette version de Voltbok ne comprend pas et qu’elle perd à l’enregistrement&#xa0;: %1. Ce fichier ne peut pas être mis de côté&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Another program had changed the logbook, and what you recorded has taken the place of that: %1. The other version is kept in “%2”; undo brings it back.</source>
        <translation>Un autre programme avait modifié le carnet, et ce que vous avez enregistré a remplacé sa version&#xa0;: %1. L’autre version est conservée dans «&#xa0;%2&#xa0;»&#xa0;; Annuler la rétablit.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is gone: another program has moved or removed it. This window still shows what it held. Nothing can be recorded until the file is back; if it does not come back by itself, put it back.</source>
        <translation>Le fichier du carnet «&#xa0;%1&#xa0;» a disparu&#xa0;: un autre programme l’a déplacé ou supprimé. Cette fenêtre affiche encore ce qu’il contenait. Rien ne peut être enregistré tant que le fichier n’est pas revenu&#xa0;; s’il ne revient pas de lui-même, remettez-le en place.</translation>
    </message>
    <message>
        <source>The logbook file “%1” was changed by another program, and is no whole logbook now: %2. This window still shows what it held. Nothing can be recorded until the file is whole; if that does not come by itself, put the file back.</source>
        <translation>Le fichier du carnet «&#xa0;%1&#xa0;» a été modifié par un autre programme et n’est plus un carnet intact&#xa0;: %2. Cette fenêtre affiche encore ce qu’il contenait. Rien ne peut être enregistré tant que le fichier n’est pas intact&#xa0;; si cela ne s’arrange pas tout seul, remettez le fichier en place.</translation>
    </message>
    <message>
        <source>Put the File Back</source>
        <translation>Remettre le fichier</translation>
    </message>
    <message>
        <source>The logbook file is gone or damaged.</source>
        <translation>Le fichier du carnet a disparu ou est endommagé.</translation>
    </message>
    <message>
        <source>Everything that this window shows is kept in a copy, which the next start offers. Go back, and put the file back now.</source>
        <translation>Tout ce que cette fenêtre affiche est conservé dans une copie, que le prochain démarrage propose. Revenez, puis remettez le fichier en place maintenant.</translation>
    </message>
</context>
<context>
    <name>Host::SidePanel</name>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batteries</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vols</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panneau latéral</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>The panel is about to read the logbook, which is long. Press here to go on without what is new.</source>
        <translation>Le panneau s’apprête à lire le carnet, qui est long. Appuyez ici pour continuer sans les nouveautés.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>The panel does not show yet what is new. Press here to read it.</source>
        <translation>Le panneau n’affiche pas encore les nouveautés. Appuyez ici pour les lire.</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsModel</name>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vols</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Déchargé (mAh)</translation>
    </message>
</context>
<context>
    <name>Host::StatisticsTab</name>
    <message>
        <source>There is nothing to add up yet. Add a battery and a model first: press the menu button, then Edit.</source>
        <translation>Il n’y a encore rien à totaliser. Ajoutez d’abord une batterie et un modèle&#xa0;: appuyez sur le bouton du menu, puis sur Édition.</translation>
    </message>
    <message>
        <source>There is nothing to add up yet. Record your first flight: click the card of a charged battery.</source>
        <translation>Il n’y a encore rien à totaliser. Enregistrez votre premier vol&#xa0;: cliquez sur la carte d’une batterie chargée.</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>D&amp;u&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Au&#xa0;:</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Add up &amp;by:</source>
        <translation>Totaux pa&amp;r&#xa0;:</translation>
    </message>
    <message>
        <source>Add up by</source>
        <translation>Totaux par</translation>
    </message>
    <message>
        <source>Pl&amp;ot:</source>
        <translation>&amp;Graphique&#xa0;:</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Ce que montre le graphique</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Premier jour</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
    <message>
        <source>%1 is limited</source>
        <translation>%1&#xa0;: limité</translation>
    </message>
    <message>
        <source>Flights, added up</source>
        <translation>Vols, totalisés</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The first day is after the last one.</source>
        <translation>Le premier jour est postérieur au dernier.</translation>
    </message>
    <message numerus="yes">
        <source>In all: %Ln flights, %1 minutes, %2 mAh.</source>
        <translation>
            <numerusform>En tout&#xa0;: %Ln vol, %1 minutes, %2&#xa0;mAh.</numerusform>
            <numerusform>En tout&#xa0;: %Ln vols, %1 minutes, %2&#xa0;mAh.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a time are not in the table.</source>
        <translation>
            <numerusform>%Ln vol sans heure n’est pas dans le tableau.</numerusform>
            <numerusform>%Ln vols sans heure ne sont pas dans le tableau.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln flights without a location are not in the table.</source>
        <translation>
            <numerusform>%Ln vol sans lieu n’est pas dans le tableau.</numerusform>
            <numerusform>%Ln vols sans lieu ne sont pas dans le tableau.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Host::TableColumns</name>
    <message>
        <source>&amp;Sort by This Column</source>
        <translation>&amp;Trier selon cette colonne</translation>
    </message>
</context>
<context>
    <name>Host::TidyDialog</name>
    <message>
        <source>%1: %2, and again at %3</source>
        <translation>%1&#xa0;: %2, et de nouveau à %3</translation>
    </message>
    <message>
        <source>Tidy Up</source>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>These flights stand &amp;twice, as a card leaves them that was clicked twice. The second one of each that is ticked is removed, with its discharge and the cycle of its battery.</source>
        <translation>Ces vols figurent en &amp;double, comme en laisse une carte sur laquelle on a cliqué deux fois. Le second de chaque paire cochée est retiré, avec sa décharge et le cycle de sa batterie.</translation>
    </message>
    <message>
        <source>Flights that stand twice</source>
        <translation>Vols en double</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>Host::TodayTab</name>
    <message>
        <source>There is no battery yet. Add your first one: press the menu button, then Edit.</source>
        <translation>Il n’y a pas encore de batterie. Ajoutez la première&#xa0;: appuyez sur le bouton du menu, puis sur Édition.</translation>
    </message>
    <message>
        <source>Nothing to do today.</source>
        <translation>Rien à faire aujourd’hui.</translation>
    </message>
    <message>
        <source>What to do today. Click a line to see its battery.</source>
        <translation>À faire aujourd’hui. Cliquez sur une ligne pour voir sa batterie.</translation>
    </message>
    <message>
        <source>What to do today</source>
        <translation>À faire aujourd’hui</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Alerte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Notice: %1</source>
        <translation>Avis&#xa0;: %1</translation>
    </message>
    <message>
        <source>Show “%1”</source>
        <translation>Afficher «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>Host::VersionsModel</name>
    <message>
        <source>Copy of %1</source>
        <translation>Copie du %1</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (endommagée)</translation>
    </message>
    <message>
        <source>%1 (cannot be read)</source>
        <translation>%1 (illisible)</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batteries</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vols</translation>
    </message>
    <message>
        <source>Discharges</source>
        <translation>Décharges</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>doubtful: counter %1, current says %2</source>
        <translation>douteux&#xa0;: compteur %1, le courant indique %2</translation>
    </message>
    <message>
        <source>goes on with an earlier import</source>
        <translation>poursuit une importation précédente</translation>
    </message>
    <message>
        <source>a part of the discharge before</source>
        <translation>une partie de la décharge précédente</translation>
    </message>
    <message>
        <source>the radio&apos;s clock was never set</source>
        <translation>l’horloge de la radio n’a jamais été réglée</translation>
    </message>
    <message>
        <source>neither consumption nor current was measured</source>
        <translation>ni la consommation ni le courant n’ont été mesurés</translation>
    </message>
    <message>
        <source>shorter than 20 s</source>
        <translation>plus court que 20&#xa0;s</translation>
    </message>
    <message>
        <source>less than 2 % of the capacity</source>
        <translation>moins de 2&#xa0;% de la capacité</translation>
    </message>
    <message>
        <source>you entered the values of the flight</source>
        <translation>vous avez saisi les valeurs du vol</translation>
    </message>
    <message>
        <source>the flight has no discharge</source>
        <translation>le vol n’a pas de décharge</translation>
    </message>
    <message>
        <source>the flight has several batteries</source>
        <translation>le vol a plusieurs batteries</translation>
    </message>
    <message>
        <source>another log tells the same</source>
        <translation>un autre journal indique la même chose</translation>
    </message>
    <message>
        <source>parts of it are two flights of the logbook already</source>
        <translation>des parties forment déjà deux vols du carnet</translation>
    </message>
    <message>
        <source>the logbook takes %1 mAh</source>
        <translation>le carnet admet %1&#xa0;mAh</translation>
    </message>
    <message>
        <source>the logbook takes %1 A</source>
        <translation>le carnet admet %1&#xa0;A</translation>
    </message>
    <message>
        <source>the logbook does not have this model</source>
        <translation>le carnet ne contient pas ce modèle</translation>
    </message>
    <message>
        <source>no battery is known for it</source>
        <translation>on ne lui connaît aucune batterie</translation>
    </message>
    <message>
        <source>fills the flight of %1 with %2</source>
        <translation>complète le vol de %1 avec %2</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nouveau</translation>
    </message>
    <message>
        <source>new, with %1</source>
        <translation>nouveau, avec %1</translation>
    </message>
    <message>
        <source>known</source>
        <translation>connu</translation>
    </message>
    <message>
        <source>bench test</source>
        <translation>essai au banc</translation>
    </message>
</context>
<context>
    <name>LogReading</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Il ne peut pas être lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The reading was cancelled.</source>
        <translation>La lecture a été annulée.</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>a comment in line %1</source>
        <translation>un commentaire à la ligne %1</translation>
    </message>
    <message>
        <source>an instruction to other programs in line %1</source>
        <translation>une instruction pour d’autres programmes à la ligne %1</translation>
    </message>
    <message>
        <source>everything from line %1 on</source>
        <translation>tout à partir de la ligne %1</translation>
    </message>
    <message>
        <source>model “%1”</source>
        <translation>modèle «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>battery “%1”</source>
        <translation>batterie «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the text “%1” of “%2” in line %3</source>
        <translation>le texte «&#xa0;%1&#xa0;» de «&#xa0;%2&#xa0;» à la ligne %3</translation>
    </message>
    <message>
        <source>the element “%1” in line %2</source>
        <translation>l’élément «&#xa0;%1&#xa0;» à la ligne %2</translation>
    </message>
    <message>
        <source>the attribute “%1” (%2) of “%3” in line %4</source>
        <translation>l’attribut «&#xa0;%1&#xa0;» (%2) de «&#xa0;%3&#xa0;» à la ligne %4</translation>
    </message>
</context>
<context>
    <name>MeasuredFile</name>
    <message>
        <source>it is damaged</source>
        <translation>il est endommagé</translation>
    </message>
    <message>
        <source>a later version of Voltbok wrote it</source>
        <translation>une version plus récente de Voltbok l’a écrit</translation>
    </message>
</context>
<context>
    <name>MeasuredStore</name>
    <message>
        <source>The measured values in “%1” are not used: %2. The file is left as it is.</source>
        <translation>Les valeurs mesurées de «&#xa0;%1&#xa0;» ne sont pas utilisées&#xa0;: %2. Le fichier est laissé tel quel.</translation>
    </message>
    <message>
        <source>The measured values in “%1” cannot be read: %2. The logbook itself is not concerned.</source>
        <translation>Les valeurs mesurées de «&#xa0;%1&#xa0;» ne peuvent pas être lues&#xa0;: %2. Le carnet lui-même n’est pas concerné.</translation>
    </message>
</context>
<context>
    <name>MergeSources</name>
    <message>
        <source>it has changed meanwhile</source>
        <translation>il a changé entre-temps</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n de plus</numerusform>
            <numerusform>%1 et %n de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Take the Logbook Over</source>
        <translation>Reprendre le carnet</translation>
    </message>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there. Nothing was changed. Restore one of them.</source>
        <translation>Le fichier du carnet «&#xa0;%1&#xa0;» est absent, mais des versions antérieures existent. Rien n’a été modifié. Restaurez l’une d’elles.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2. Nothing was changed. Restore one of its copies, or start with an empty logbook.</source>
        <translation>Le fichier du carnet «&#xa0;%1&#xa0;» est endommagé&#xa0;: %2. Rien n’a été modifié. Restaurez l’une de ses copies, ou commencez avec un carnet vide.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be read: %2. Nothing was changed. Put the right file in its place, or choose another folder.</source>
        <translation>Le fichier du carnet «&#xa0;%1&#xa0;» ne peut pas être lu&#xa0;: %2. Rien n’a été modifié. Mettez le bon fichier à sa place, ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The version that you chose cannot be read any more. Nothing was changed. Start the program again, and choose another one.</source>
        <translation>La version que vous avez choisie ne peut plus être lue. Rien n’a été modifié. Redémarrez le programme et choisissez-en une autre.</translation>
    </message>
    <message>
        <source>Nothing could be put in the place of “%1”: %2. All is as it was. Free some space, and start the program again.</source>
        <translation>Rien n’a pu être mis à la place de «&#xa0;%1&#xa0;»&#xa0;: %2. Tout est comme avant. Libérez de l’espace, puis redémarrez le programme.</translation>
    </message>
    <message>
        <source>The logbook file “%1” cannot be checked before it is opened: %2. Nothing was changed. Free some space, or see that the program can write in “%3”.</source>
        <translation>Le fichier du carnet «&#xa0;%1&#xa0;» ne peut pas être vérifié avant son ouverture&#xa0;: %2. Rien n’a été modifié. Libérez de l’espace, ou veillez à ce que le programme puisse écrire dans «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>The logbook file “%1” holds what this version of Voltbok would drop when it saves, and no copy of it can be put aside: %2. Nothing was changed. Free some space, and start the program again.</source>
        <translation>Le fichier du carnet «&#xa0;%1&#xa0;» contient des éléments que cette version de Voltbok perdrait à l’enregistrement, et aucune copie ne peut en être mise de côté&#xa0;: %2. Rien n’a été modifié. Libérez de l’espace, puis redémarrez le programme.</translation>
    </message>
    <message>
        <source>The logbook file holds what this version of Voltbok does not understand, and drops when it saves: %1. The file as it is now is kept as “%2”.</source>
        <translation>Le fichier du carnet contient des éléments que cette version de Voltbok ne comprend pas et qu’elle perd à l’enregistrement&#xa0;: %1. Le fichier dans son état actuel est conservé sous le nom «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Others</name>
    <message>
        <source>as many entries as before, with other contents</source>
        <translation>autant d’entrées qu’avant, avec un autre contenu</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>it is missing, and the folder of its copies cannot be read</source>
        <translation>il est absent, et le dossier de ses copies ne peut pas être lu</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>il est absent</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
</context>
<context>
    <name>RecoveryQuestion</name>
    <message>
        <source>The logbook file “%1” is missing, but earlier versions of it are there.</source>
        <translation>Le fichier du carnet «&#xa0;%1&#xa0;» est absent, mais des versions antérieures existent.</translation>
    </message>
    <message>
        <source>The logbook file “%1” is damaged: %2.</source>
        <translation>Le fichier du carnet «&#xa0;%1&#xa0;» est endommagé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>If you keep it on a disk or in a synchronised folder that is not there now, quit and bring it back first.</source>
        <translation>Si vous le conservez sur un disque ou dans un dossier synchronisé qui n’est pas là en ce moment, quittez et rétablissez-en d’abord l’accès.</translation>
    </message>
    <message>
        <source>Quitting leaves the damaged file as it is. Otherwise it is kept in the same folder, under a name that begins with “voltbok-broken-”.</source>
        <translation>Quitter laisse le fichier endommagé tel quel. Sinon, il est conservé dans le même dossier, sous un nom qui commence par «&#xa0;voltbok-broken-&#xa0;».</translation>
    </message>
    <message>
        <source>The copies in “%1” cannot be listed just now. Quit and start the program again before you choose anything else.</source>
        <translation>Les copies dans «&#xa0;%1&#xa0;» ne peuvent pas être listées pour le moment. Quittez et redémarrez le programme avant tout autre choix.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Quit and look for one elsewhere before you start with an empty logbook.</source>
        <translation>Aucune copie intacte n’en a été trouvée. Quittez et cherchez-en une ailleurs avant de commencer avec un carnet vide.</translation>
    </message>
    <message>
        <source>No whole copy of it was found. Choose what to go on with only after a look at what it holds.</source>
        <translation>Aucune copie intacte n’en a été trouvée. Regardez ce qu’une version contient avant de la choisir pour continuer.</translation>
    </message>
    <message>
        <source>Choose the version to go on with; the newest is on top.</source>
        <translation>Choisissez la version avec laquelle continuer&#x202f;; la plus récente est en haut.</translation>
    </message>
    <message>
        <source>What can still be read of the damaged file</source>
        <translation>Ce qui peut encore être lu du fichier endommagé</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Start with an Empty Logbook</source>
        <translation>Commencer un carnet vide</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>A new logbook begins in “%1”: there was none.</source>
        <translation>Un nouveau carnet commence dans «&#xa0;%1&#xa0;»&#xa0;: il n’y en avait pas.</translation>
    </message>
    <message>
        <source>The logbook is checked…</source>
        <translation>Vérification du carnet…</translation>
    </message>
    <message>
        <source>The picture “%1” was not written: there is a file of that name, and it is no picture. Choose another name.</source>
        <translation>L’image «&#xa0;%1&#xa0;» n’a pas été écrite&#xa0;: un fichier de ce nom existe, et ce n’est pas une image. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The picture “%1” cannot be written: %2. Choose another name.</source>
        <translation>L’image «&#xa0;%1&#xa0;» ne peut pas être écrite&#xa0;: %2. Choisissez un autre nom.</translation>
    </message>
</context>
<context>
    <name>StatisticsChart</name>
    <message>
        <source>(no name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vols</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Discharged (mAh)</source>
        <translation>Déchargé (mAh)</translation>
    </message>
    <message>
        <source>%1 by month</source>
        <translation>%1 par mois</translation>
    </message>
    <message numerus="yes">
        <source>%1 by month, the newest %n months</source>
        <translation>
            <numerusform>%1 par mois, %n mois le plus récent</numerusform>
            <numerusform>%1 par mois, les %n mois les plus récents</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by model</source>
        <translation>%1 par modèle</translation>
    </message>
    <message numerus="yes">
        <source>%1 by model, the %n with the most</source>
        <translation>
            <numerusform>%1 par modèle, %n modèle en tête</numerusform>
            <numerusform>%1 par modèle, les %n modèles en tête</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 by location</source>
        <translation>%1 par lieu</translation>
    </message>
    <message numerus="yes">
        <source>%1 by location, the %n with the most</source>
        <translation>
            <numerusform>%1 par lieu, %n lieu en tête</numerusform>
            <numerusform>%1 par lieu, les %n lieux en tête</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>StorageFolder</name>
    <message>
        <source>A logbook cannot be kept in “%1”: “%2” is not a directory. Choose another folder.</source>
        <translation>Un carnet ne peut pas être conservé dans «&#xa0;%1&#xa0;»&#xa0;: «&#xa0;%2&#xa0;» n’est pas un dossier. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>A logbook cannot be kept in “%1”: there is no permission to read and write in “%2”. Choose another folder, or ask its owner for access.</source>
        <translation>Un carnet ne peut pas être conservé dans «&#xa0;%1&#xa0;»&#xa0;: vous n’avez pas le droit de lire et d’écrire dans «&#xa0;%2&#xa0;». Choisissez un autre dossier, ou demandez l’accès à son propriétaire.</translation>
    </message>
</context>
<context>
    <name>TablePrinting</name>
    <message>
        <source>The table was not printed: the printer or the file for it cannot be written. Choose another one.</source>
        <translation>Le tableau n’a pas été imprimé&#xa0;: l’imprimante ou son fichier n’est pas accessible en écriture. Choisissez une autre destination.</translation>
    </message>
</context>
<context>
    <name>VoltbokGui</name>
    <message>
        <source>MainWindow</source>
        <translation>MainWindow</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Batteries</source>
        <translation>Batteries</translation>
    </message>
    <message>
        <source>Model whose batteries are shown</source>
        <translation>Modèle dont les batteries sont affichées</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Please go to Options and add new model and battery!</source>
        <translation>Allez dans Options et ajoutez un modèle et une batterie&#x202f;!</translation>
    </message>
    <message>
        <source>Battery data</source>
        <translation>Données de batterie</translation>
    </message>
    <message>
        <source>Battery whose discharges are shown</source>
        <translation>Batterie dont les décharges sont affichées</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Capacity discharged, in mAh</source>
        <translation>Capacité déchargée, en mAh</translation>
    </message>
    <message>
        <source>Capacity in mAh</source>
        <translation>Capacité en mAh</translation>
    </message>
    <message>
        <source>Maximum current, in A</source>
        <translation>Courant maximal, en A</translation>
    </message>
    <message>
        <source>Maximum current in A</source>
        <translation>Courant maximal en A</translation>
    </message>
    <message>
        <source>Maximum current, in multiples of the capacity (C)</source>
        <translation>Courant maximal, en multiples de la capacité (C)</translation>
    </message>
    <message>
        <source>Maximum current in C</source>
        <translation>Courant maximal en C</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Add a location</source>
        <translation>Ajouter un lieu</translation>
    </message>
    <message>
        <source>Add a battery</source>
        <translation>Ajouter une batterie</translation>
    </message>
    <message>
        <source>Add a model</source>
        <translation>Ajouter un modèle</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Modify the battery chosen below. While there is none, this does nothing.</source>
        <translation>Modifier la batterie choisie ci-dessous. Tant qu’il n’y en a pas, sans effet.</translation>
    </message>
    <message>
        <source>Modify the battery</source>
        <translation>Modifier la batterie</translation>
    </message>
    <message>
        <source>Modify the model chosen below. While there is none, this does nothing.</source>
        <translation>Modifier le modèle choisi ci-dessous. Tant qu’il n’y en a pas, sans effet.</translation>
    </message>
    <message>
        <source>Modify the model</source>
        <translation>Modifier le modèle</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete a location</source>
        <translation>Supprimer un lieu</translation>
    </message>
    <message>
        <source>Delete a battery</source>
        <translation>Supprimer une batterie</translation>
    </message>
    <message>
        <source>Delete a model</source>
        <translation>Supprimer un modèle</translation>
    </message>
    <message>
        <source>Model to which batteries are assigned</source>
        <translation>Modèle auquel des batteries sont attribuées</translation>
    </message>
    <message>
        <source>Battery to assign to the model, or to remove from it</source>
        <translation>Batterie à attribuer au modèle ou à en retirer</translation>
    </message>
    <message>
        <source>Add the battery to the model. While there is no model, this does nothing.</source>
        <translation>Ajouter la batterie au modèle. Tant qu’il n’y a pas de modèle, sans effet.</translation>
    </message>
    <message>
        <source>Add the battery to the model</source>
        <translation>Ajouter la batterie au modèle</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove the battery from the model. While there is no model, this does nothing.</source>
        <translation>Retirer la batterie du modèle. Tant qu’il n’y a pas de modèle, sans effet.</translation>
    </message>
    <message>
        <source>Remove the battery from the model</source>
        <translation>Retirer la batterie du modèle</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Carnet</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Data capture</source>
        <translation>Relevé des données</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Complet</translation>
    </message>
    <message>
        <source>In Quick mode you will not be asked to enter any data when battery was discharged!</source>
        <translation>En mode Rapide, aucune donnée ne vous sera demandée lorsqu’une batterie a été déchargée&#x202f;!</translation>
    </message>
    <message>
        <source>Add location</source>
        <translation>Ajouter un lieu</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Add battery</source>
        <translation>Ajouter une batterie</translation>
    </message>
    <message>
        <source>MyBattery</source>
        <translation>MaBatterie</translation>
    </message>
    <message>
        <source>Capacity (mAh)</source>
        <translation>Capacité (mAh)</translation>
    </message>
    <message>
        <source>00000</source>
        <translation>00000</translation>
    </message>
    <message>
        <source>1000</source>
        <translation>1000</translation>
    </message>
    <message>
        <source>Discharge rate (C)</source>
        <translation>Taux de décharge (C)</translation>
    </message>
    <message>
        <source>000</source>
        <translation>000</translation>
    </message>
    <message>
        <source>30</source>
        <translation>30</translation>
    </message>
    <message>
        <source>Charge  rate (C)</source>
        <translation>Taux de charge (C)</translation>
    </message>
    <message>
        <source>0.0</source>
        <translation>0.0</translation>
    </message>
    <message>
        <source>2.0</source>
        <translation>2.0</translation>
    </message>
    <message>
        <source>Cycles already used</source>
        <translation>Cycles déjà effectués</translation>
    </message>
    <message>
        <source>0000</source>
        <translation>0000</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Date of purchase (Y/M/D)</source>
        <translation>Date d’achat (A/M/J)</translation>
    </message>
    <message>
        <source>2020-01-01</source>
        <translation>2020-01-01</translation>
    </message>
    <message>
        <source>Add model</source>
        <translation>Ajouter un modèle</translation>
    </message>
    <message>
        <source>MyHeli</source>
        <translation>MonHélico</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Heli</source>
        <translation>Hélico</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>1.00</source>
        <translation>1.00</translation>
    </message>
    <message>
        <source>In the unit of your choice</source>
        <translation>Dans l’unité de votre choix</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>700</source>
        <translation>700</translation>
    </message>
    <message>
        <source>Flights already used</source>
        <translation>Vols déjà effectués</translation>
    </message>
    <message>
        <source>Additional notes</source>
        <translation>Notes complémentaires</translation>
    </message>
    <message>
        <source>Delete battery</source>
        <translation>Supprimer une batterie</translation>
    </message>
    <message>
        <source>Battery to delete</source>
        <translation>Batterie à supprimer</translation>
    </message>
    <message>
        <source>Really?</source>
        <translation>Vraiment&#x202f;?</translation>
    </message>
    <message>
        <source>Delete the battery. While there is none, this does nothing.</source>
        <translation>Supprimer la batterie. Tant qu’il n’y en a pas, sans effet.</translation>
    </message>
    <message>
        <source>Delete model</source>
        <translation>Supprimer un modèle</translation>
    </message>
    <message>
        <source>Model to delete</source>
        <translation>Modèle à supprimer</translation>
    </message>
    <message>
        <source>Delete the model. While there is none, this does nothing.</source>
        <translation>Supprimer le modèle. Tant qu’il n’y en a pas, sans effet.</translation>
    </message>
    <message>
        <source>Delete location</source>
        <translation>Supprimer un lieu</translation>
    </message>
    <message>
        <source>Location to delete</source>
        <translation>Lieu à supprimer</translation>
    </message>
    <message>
        <source>Delete the location. While there is none, this does nothing.</source>
        <translation>Supprimer le lieu. Tant qu’il n’y en a pas, sans effet.</translation>
    </message>
    <message>
        <source>Log book</source>
        <translation>Carnet</translation>
    </message>
    <message>
        <source>Model whose flights are shown</source>
        <translation>Modèle dont les vols sont affichés</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>Earlier flight</source>
        <translation>Vol précédent</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Later flight</source>
        <translation>Vol suivant</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Ambient temp</source>
        <translation>Temp. ambiante</translation>
    </message>
    <message>
        <source>Maximum current (A)</source>
        <translation>Courant maximal (A)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Battery discharged</source>
        <translation>Batterie déchargée</translation>
    </message>
    <message>
        <source>Year-month-day</source>
        <translation>Année-mois-jour</translation>
    </message>
    <message>
        <source>Date, year-month-day</source>
        <translation>Date, année-mois-jour</translation>
    </message>
    <message>
        <source>Hours:minutes:seconds</source>
        <translation>Heures:minutes:secondes</translation>
    </message>
    <message>
        <source>Time, hours:minutes:seconds</source>
        <translation>Heure, heures:minutes:secondes</translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation>Données du vol</translation>
    </message>
    <message>
        <source>Location of the flight</source>
        <translation>Lieu du vol</translation>
    </message>
    <message>
        <source>Duration, hours:minutes:seconds</source>
        <translation>Durée, heures:minutes:secondes</translation>
    </message>
    <message>
        <source>In °C</source>
        <translation>En °C</translation>
    </message>
    <message>
        <source>Ambient temperature in °C</source>
        <translation>Température ambiante en °C</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Modify model</source>
        <translation>Modifier le modèle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Modify battery</source>
        <translation>Modifier la batterie</translation>
    </message>
    <message>
        <source>Battery age: %1 years</source>
        <translation>Âge de la batterie&#xa0;: %1 ans</translation>
    </message>
    <message>
        <source>Chart of %1 in %2</source>
        <translation>Graphique de %1 en %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>it brings a document type of its own</source>
        <translation>il déclare son propre type de document</translation>
    </message>
    <message>
        <source>it is not a logbook: its root element is “%1”</source>
        <translation>ce n’est pas un carnet&#xa0;: son élément racine est «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it contains zero bytes</source>
        <translation>il contient des octets nuls</translation>
    </message>
    <message>
        <source>line %1 cannot be understood (%2)</source>
        <translation>la ligne %1 est incompréhensible (%2)</translation>
    </message>
    <message>
        <source>it is a link to “%1”, which does not exist</source>
        <translation>c’est un lien vers «&#xa0;%1&#xa0;», qui n’existe pas</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>il dépasse %1&#xa0;Mo</translation>
    </message>
    <message>
        <source>it was written, but reads differently</source>
        <translation>il a été écrit, mais sa relecture diffère</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>operation not permitted</source>
        <translation>opération non permise</translation>
    </message>
    <message>
        <source>the disk is read-only</source>
        <translation>le disque est en lecture seule</translation>
    </message>
    <message>
        <source>no space left on device</source>
        <translation>il ne reste plus d’espace sur le périphérique</translation>
    </message>
    <message>
        <source>no space left within your quota</source>
        <translation>il ne reste plus d’espace dans votre quota</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>le fichier serait trop grand</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>le disque signale une erreur</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>son nom est trop long</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>trop de fichiers sont ouverts</translation>
    </message>
    <message>
        <source>no space is left on the disk</source>
        <translation>il ne reste plus d’espace sur le disque</translation>
    </message>
    <message>
        <source>there is no permission to write in its folder</source>
        <translation>vous n’avez pas le droit d’écrire dans son dossier</translation>
    </message>
</context>
<context>
    <name>Xlsx</name>
    <message>
        <source>there is not enough memory</source>
        <translation>la mémoire est insuffisante</translation>
    </message>
    <message>
        <source>a sheet has no more than 1,048,576 rows</source>
        <translation>une feuille n’a pas plus de 1&#x202f;048&#x202f;576 lignes</translation>
    </message>
    <message>
        <source>this build of the program cannot write workbooks</source>
        <translation>cette version compilée du programme ne sait pas écrire de classeurs</translation>
    </message>
</context>
</TS>
