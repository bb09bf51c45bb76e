// SPDX-License-Identifier: MIT

#include "model/NearestCity.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

struct City {
    QStringView name;
    double latitude;
    double longitude;
};

constexpr double farthest = 40; // kilometres
constexpr double earthDiameter = 12742; // kilometres

constexpr std::array cities = std::to_array<City>({{u"London", 51.51, -0.13}, {u"Birmingham", 52.48, -1.90},
    {u"Manchester", 53.48, -2.24}, {u"Liverpool", 53.41, -2.98}, {u"Leeds", 53.80, -1.55}, {u"Sheffield", 53.38, -1.47},
    {u"Newcastle", 54.98, -1.61}, {u"Nottingham", 52.95, -1.15}, {u"Bristol", 51.45, -2.59},
    {u"Southampton", 50.90, -1.40}, {u"Plymouth", 50.38, -4.14}, {u"Norwich", 52.63, 1.30}, {u"Cambridge", 52.21, 0.12},
    {u"Oxford", 51.75, -1.26}, {u"Cardiff", 51.48, -3.18}, {u"Edinburgh", 55.95, -3.19}, {u"Glasgow", 55.86, -4.25},
    {u"Aberdeen", 57.15, -2.10}, {u"Inverness", 57.48, -4.22}, {u"Belfast", 54.60, -5.93}, {u"Dublin", 53.35, -6.26},
    {u"Cork", 51.90, -8.47}, {u"Galway", 53.27, -9.06}, {u"Limerick", 52.66, -8.63}, {u"Reykjavík", 64.15, -21.94},
    {u"Akureyri", 65.68, -18.09}, {u"Tórshavn", 62.01, -6.77}, {u"Oslo", 59.91, 10.75}, {u"Bergen", 60.39, 5.32},
    {u"Trondheim", 63.43, 10.40}, {u"Stavanger", 58.97, 5.73}, {u"Tromsø", 69.65, 18.96}, {u"Stockholm", 59.33, 18.07},
    {u"Gothenburg", 57.71, 11.97}, {u"Malmö", 55.60, 13.00}, {u"Uppsala", 59.86, 17.64}, {u"Umeå", 63.83, 20.26},
    {u"Kiruna", 67.86, 20.23}, {u"Copenhagen", 55.68, 12.57}, {u"Aarhus", 56.16, 10.20}, {u"Odense", 55.40, 10.39},
    {u"Aalborg", 57.05, 9.92}, {u"Helsinki", 60.17, 24.94}, {u"Tampere", 61.50, 23.76}, {u"Turku", 60.45, 22.27},
    {u"Oulu", 65.01, 25.47}, {u"Tallinn", 59.44, 24.75}, {u"Tartu", 58.38, 26.73}, {u"Riga", 56.95, 24.11},
    {u"Vilnius", 54.69, 25.28}, {u"Kaunas", 54.90, 23.90}, {u"Berlin", 52.52, 13.40}, {u"Hamburg", 53.55, 9.99},
    {u"Munich", 48.14, 11.58}, {u"Cologne", 50.94, 6.96}, {u"Frankfurt", 50.11, 8.68}, {u"Stuttgart", 48.78, 9.18},
    {u"Düsseldorf", 51.23, 6.78}, {u"Dortmund", 51.51, 7.47}, {u"Essen", 51.46, 7.01}, {u"Leipzig", 51.34, 12.37},
    {u"Dresden", 51.05, 13.74}, {u"Hanover", 52.37, 9.73}, {u"Nuremberg", 49.45, 11.08}, {u"Bremen", 53.08, 8.80},
    {u"Freiburg", 48.00, 7.85}, {u"Mannheim", 49.49, 8.47}, {u"Karlsruhe", 49.01, 8.40}, {u"Augsburg", 48.37, 10.90},
    {u"Münster", 51.96, 7.63}, {u"Kassel", 51.31, 9.49}, {u"Erfurt", 50.98, 11.03}, {u"Magdeburg", 52.13, 11.63},
    {u"Rostock", 54.09, 12.13}, {u"Kiel", 54.32, 10.13}, {u"Saarbrücken", 49.24, 6.99}, {u"Vienna", 48.21, 16.37},
    {u"Graz", 47.07, 15.44}, {u"Linz", 48.31, 14.29}, {u"Salzburg", 47.80, 13.04}, {u"Innsbruck", 47.27, 11.39},
    {u"Zurich", 47.37, 8.54}, {u"Geneva", 46.20, 6.14}, {u"Basel", 47.56, 7.59}, {u"Bern", 46.95, 7.45},
    {u"Lausanne", 46.52, 6.63}, {u"Lugano", 46.00, 8.95}, {u"Amsterdam", 52.37, 4.90}, {u"Rotterdam", 51.92, 4.48},
    {u"The Hague", 52.08, 4.30}, {u"Utrecht", 52.09, 5.12}, {u"Eindhoven", 51.44, 5.48}, {u"Groningen", 53.22, 6.57},
    {u"Brussels", 50.85, 4.35}, {u"Antwerp", 51.22, 4.40}, {u"Ghent", 51.05, 3.73}, {u"Liège", 50.63, 5.57},
    {u"Luxembourg", 49.61, 6.13}, {u"Paris", 48.86, 2.35}, {u"Marseille", 43.30, 5.37}, {u"Lyon", 45.76, 4.84},
    {u"Toulouse", 43.60, 1.44}, {u"Nice", 43.70, 7.27}, {u"Nantes", 47.22, -1.55}, {u"Strasbourg", 48.57, 7.75},
    {u"Montpellier", 43.61, 3.88}, {u"Bordeaux", 44.84, -0.58}, {u"Lille", 50.63, 3.06}, {u"Rennes", 48.11, -1.68},
    {u"Reims", 49.26, 4.03}, {u"Grenoble", 45.19, 5.72}, {u"Dijon", 47.32, 5.04}, {u"Clermont-Ferrand", 45.78, 3.09},
    {u"Tours", 47.39, 0.69}, {u"Le Havre", 49.49, 0.11}, {u"Brest", 48.39, -4.49}, {u"Ajaccio", 41.92, 8.74},
    {u"Monaco", 43.74, 7.42}, {u"Madrid", 40.42, -3.70}, {u"Barcelona", 41.39, 2.17}, {u"Valencia", 39.47, -0.38},
    {u"Seville", 37.39, -5.98}, {u"Zaragoza", 41.65, -0.89}, {u"Málaga", 36.72, -4.42}, {u"Murcia", 37.99, -1.13},
    {u"Bilbao", 43.26, -2.93}, {u"Palma", 39.57, 2.65}, {u"Granada", 37.18, -3.60}, {u"Alicante", 38.35, -0.48},
    {u"Valladolid", 41.65, -4.72}, {u"A Coruña", 43.37, -8.40}, {u"Las Palmas", 28.12, -15.43},
    {u"Santa Cruz de Tenerife", 28.46, -16.25}, {u"Lisbon", 38.72, -9.14}, {u"Porto", 41.15, -8.61},
    {u"Faro", 37.02, -7.93}, {u"Funchal", 32.65, -16.91}, {u"Ponta Delgada", 37.74, -25.67}, {u"Rome", 41.90, 12.50},
    {u"Milan", 45.46, 9.19}, {u"Naples", 40.85, 14.27}, {u"Turin", 45.07, 7.69}, {u"Palermo", 38.12, 13.36},
    {u"Genoa", 44.41, 8.93}, {u"Bologna", 44.49, 11.34}, {u"Florence", 43.77, 11.26}, {u"Bari", 41.12, 16.87},
    {u"Catania", 37.50, 15.09}, {u"Venice", 45.44, 12.32}, {u"Verona", 45.44, 10.99}, {u"Trieste", 45.65, 13.78},
    {u"Cagliari", 39.22, 9.12}, {u"Valletta", 35.90, 14.51}, {u"Athens", 37.98, 23.73}, {u"Thessaloniki", 40.64, 22.94},
    {u"Patras", 38.25, 21.73}, {u"Heraklion", 35.34, 25.14}, {u"Nicosia", 35.17, 33.36}, {u"Warsaw", 52.23, 21.01},
    {u"Kraków", 50.06, 19.94}, {u"Łódź", 51.76, 19.46}, {u"Wrocław", 51.11, 17.03}, {u"Poznań", 52.41, 16.93},
    {u"Gdańsk", 54.35, 18.65}, {u"Szczecin", 53.43, 14.55}, {u"Lublin", 51.25, 22.57}, {u"Katowice", 50.26, 19.02},
    {u"Białystok", 53.13, 23.16}, {u"Prague", 50.08, 14.44}, {u"Brno", 49.20, 16.61}, {u"Ostrava", 49.82, 18.26},
    {u"Plzeň", 49.74, 13.37}, {u"Bratislava", 48.15, 17.11}, {u"Košice", 48.72, 21.26}, {u"Budapest", 47.50, 19.04},
    {u"Debrecen", 47.53, 21.64}, {u"Szeged", 46.25, 20.15}, {u"Ljubljana", 46.06, 14.51}, {u"Maribor", 46.55, 15.65},
    {u"Zagreb", 45.81, 15.98}, {u"Split", 43.51, 16.44}, {u"Sarajevo", 43.86, 18.41}, {u"Belgrade", 44.79, 20.45},
    {u"Novi Sad", 45.25, 19.84}, {u"Podgorica", 42.44, 19.26}, {u"Tirana", 41.33, 19.82}, {u"Skopje", 42.00, 21.43},
    {u"Pristina", 42.66, 21.17}, {u"Sofia", 42.70, 23.32}, {u"Plovdiv", 42.14, 24.75}, {u"Varna", 43.21, 27.91},
    {u"Bucharest", 44.43, 26.10}, {u"Cluj-Napoca", 46.77, 23.59}, {u"Timișoara", 45.75, 21.23}, {u"Iași", 47.16, 27.59},
    {u"Chișinău", 47.01, 28.86}, {u"Kyiv", 50.45, 30.52}, {u"Kharkiv", 49.99, 36.23}, {u"Odesa", 46.48, 30.73},
    {u"Dnipro", 48.46, 35.05}, {u"Lviv", 49.84, 24.03}, {u"Minsk", 53.90, 27.57}, {u"Moscow", 55.76, 37.62},
    {u"Saint Petersburg", 59.93, 30.34}, {u"Nizhny Novgorod", 56.33, 44.00}, {u"Kazan", 55.80, 49.11},
    {u"Samara", 53.20, 50.15}, {u"Rostov-on-Don", 47.24, 39.71}, {u"Volgograd", 48.71, 44.51},
    {u"Voronezh", 51.66, 39.20}, {u"Murmansk", 68.97, 33.08}, {u"Kaliningrad", 54.71, 20.51},
    {u"Yekaterinburg", 56.84, 60.61}, {u"Chelyabinsk", 55.16, 61.40}, {u"Ufa", 54.74, 55.97}, {u"Perm", 58.01, 56.25},
    {u"Omsk", 54.99, 73.37}, {u"Novosibirsk", 55.03, 82.92}, {u"Krasnoyarsk", 56.01, 92.87},
    {u"Irkutsk", 52.29, 104.28}, {u"Yakutsk", 62.03, 129.73}, {u"Khabarovsk", 48.48, 135.07},
    {u"Vladivostok", 43.12, 131.89}, {u"Istanbul", 41.01, 28.98}, {u"Ankara", 39.93, 32.86}, {u"Izmir", 38.42, 27.14},
    {u"Bursa", 40.19, 29.06}, {u"Antalya", 36.90, 30.70}, {u"Adana", 37.00, 35.32}, {u"Tbilisi", 41.69, 44.80},
    {u"Yerevan", 40.18, 44.51}, {u"Baku", 40.41, 49.87}, {u"Tehran", 35.69, 51.39}, {u"Mashhad", 36.30, 59.61},
    {u"Isfahan", 32.65, 51.67}, {u"Shiraz", 29.59, 52.58}, {u"Tabriz", 38.08, 46.29}, {u"Baghdad", 33.31, 44.37},
    {u"Basra", 30.51, 47.78}, {u"Mosul", 36.34, 43.13}, {u"Damascus", 33.51, 36.29}, {u"Aleppo", 36.20, 37.16},
    {u"Beirut", 33.89, 35.50}, {u"Amman", 31.95, 35.93}, {u"Jerusalem", 31.77, 35.21}, {u"Tel Aviv", 32.08, 34.78},
    {u"Haifa", 32.79, 34.99}, {u"Riyadh", 24.71, 46.68}, {u"Jeddah", 21.49, 39.19}, {u"Mecca", 21.39, 39.86},
    {u"Medina", 24.47, 39.61}, {u"Dammam", 26.43, 50.10}, {u"Kuwait City", 29.38, 47.99}, {u"Manama", 26.23, 50.59},
    {u"Doha", 25.29, 51.53}, {u"Abu Dhabi", 24.45, 54.38}, {u"Dubai", 25.20, 55.27}, {u"Muscat", 23.59, 58.41},
    {u"Sanaa", 15.35, 44.21}, {u"Aden", 12.79, 45.02}, {u"Kabul", 34.53, 69.17}, {u"Karachi", 24.86, 67.01},
    {u"Lahore", 31.55, 74.34}, {u"Islamabad", 33.68, 73.05}, {u"Faisalabad", 31.42, 73.08}, {u"Peshawar", 34.01, 71.58},
    {u"Delhi", 28.61, 77.21}, {u"Mumbai", 19.08, 72.88}, {u"Bengaluru", 12.97, 77.59}, {u"Hyderabad", 17.39, 78.49},
    {u"Ahmedabad", 23.02, 72.57}, {u"Chennai", 13.08, 80.27}, {u"Kolkata", 22.57, 88.36}, {u"Pune", 18.52, 73.86},
    {u"Surat", 21.17, 72.83}, {u"Jaipur", 26.91, 75.79}, {u"Lucknow", 26.85, 80.95}, {u"Kanpur", 26.45, 80.33},
    {u"Nagpur", 21.15, 79.09}, {u"Indore", 22.72, 75.86}, {u"Bhopal", 23.26, 77.41}, {u"Patna", 25.59, 85.14},
    {u"Chandigarh", 30.73, 76.78}, {u"Kochi", 9.93, 76.27}, {u"Coimbatore", 11.02, 76.96},
    {u"Visakhapatnam", 17.69, 83.22}, {u"Guwahati", 26.14, 91.74}, {u"Kathmandu", 27.72, 85.32},
    {u"Thimphu", 27.47, 89.64}, {u"Dhaka", 23.81, 90.41}, {u"Chittagong", 22.36, 91.78}, {u"Colombo", 6.93, 79.86},
    {u"Malé", 4.18, 73.51}, {u"Tashkent", 41.30, 69.24}, {u"Samarkand", 39.65, 66.96}, {u"Almaty", 43.24, 76.89},
    {u"Astana", 51.17, 71.45}, {u"Bishkek", 42.87, 74.59}, {u"Dushanbe", 38.56, 68.79}, {u"Ashgabat", 37.96, 58.33},
    {u"Ulaanbaatar", 47.92, 106.92}, {u"Beijing", 39.90, 116.41}, {u"Shanghai", 31.23, 121.47},
    {u"Guangzhou", 23.13, 113.26}, {u"Shenzhen", 22.54, 114.06}, {u"Chongqing", 29.56, 106.55},
    {u"Chengdu", 30.57, 104.07}, {u"Tianjin", 39.13, 117.20}, {u"Wuhan", 30.59, 114.31}, {u"Xi'an", 34.34, 108.94},
    {u"Hangzhou", 30.27, 120.16}, {u"Nanjing", 32.06, 118.80}, {u"Suzhou", 31.30, 120.58}, {u"Shenyang", 41.80, 123.43},
    {u"Harbin", 45.80, 126.53}, {u"Changchun", 43.82, 125.32}, {u"Dalian", 38.91, 121.61}, {u"Qingdao", 36.07, 120.38},
    {u"Jinan", 36.65, 117.12}, {u"Zhengzhou", 34.75, 113.63}, {u"Changsha", 28.23, 112.94}, {u"Kunming", 25.04, 102.72},
    {u"Xiamen", 24.48, 118.09}, {u"Fuzhou", 26.07, 119.30}, {u"Ningbo", 29.87, 121.54}, {u"Hefei", 31.82, 117.23},
    {u"Nanning", 22.82, 108.37}, {u"Guiyang", 26.65, 106.63}, {u"Taiyuan", 37.87, 112.55}, {u"Lanzhou", 36.06, 103.83},
    {u"Ürümqi", 43.83, 87.62}, {u"Lhasa", 29.65, 91.14}, {u"Haikou", 20.04, 110.34}, {u"Hong Kong", 22.32, 114.17},
    {u"Macau", 22.20, 113.54}, {u"Taipei", 25.03, 121.57}, {u"Taichung", 24.15, 120.67}, {u"Kaohsiung", 22.63, 120.30},
    {u"Seoul", 37.57, 126.98}, {u"Busan", 35.18, 129.08}, {u"Incheon", 37.46, 126.71}, {u"Daegu", 35.87, 128.60},
    {u"Daejeon", 36.35, 127.38}, {u"Gwangju", 35.16, 126.85}, {u"Jeju", 33.50, 126.53}, {u"Pyongyang", 39.04, 125.76},
    {u"Tokyo", 35.68, 139.69}, {u"Yokohama", 35.44, 139.64}, {u"Osaka", 34.69, 135.50}, {u"Nagoya", 35.18, 136.91},
    {u"Sapporo", 43.06, 141.35}, {u"Fukuoka", 33.59, 130.40}, {u"Kobe", 34.69, 135.20}, {u"Kyoto", 35.01, 135.77},
    {u"Hiroshima", 34.39, 132.46}, {u"Sendai", 38.27, 140.87}, {u"Niigata", 37.92, 139.04},
    {u"Kanazawa", 36.56, 136.66}, {u"Kumamoto", 32.80, 130.71}, {u"Kagoshima", 31.60, 130.56}, {u"Naha", 26.21, 127.68},
    {u"Bangkok", 13.76, 100.50}, {u"Chiang Mai", 18.79, 98.98}, {u"Phuket", 7.89, 98.40}, {u"Hanoi", 21.03, 105.85},
    {u"Ho Chi Minh City", 10.82, 106.63}, {u"Da Nang", 16.05, 108.20}, {u"Phnom Penh", 11.56, 104.92},
    {u"Vientiane", 17.97, 102.60}, {u"Yangon", 16.84, 96.17}, {u"Mandalay", 21.98, 96.08},
    {u"Kuala Lumpur", 3.14, 101.69}, {u"George Town", 5.41, 100.33}, {u"Johor Bahru", 1.49, 103.74},
    {u"Kuching", 1.55, 110.34}, {u"Kota Kinabalu", 5.98, 116.07}, {u"Singapore", 1.35, 103.82},
    {u"Bandar Seri Begawan", 4.90, 114.94}, {u"Jakarta", -6.21, 106.85}, {u"Surabaya", -7.26, 112.75},
    {u"Bandung", -6.92, 107.61}, {u"Medan", 3.60, 98.67}, {u"Semarang", -6.97, 110.42}, {u"Makassar", -5.15, 119.43},
    {u"Denpasar", -8.65, 115.22}, {u"Yogyakarta", -7.80, 110.37}, {u"Palembang", -2.98, 104.76},
    {u"Manila", 14.60, 120.98}, {u"Cebu City", 10.32, 123.89}, {u"Davao", 7.07, 125.61}, {u"Dili", -8.56, 125.57},
    {u"Cairo", 30.04, 31.24}, {u"Alexandria", 31.20, 29.92}, {u"Luxor", 25.69, 32.64}, {u"Tripoli", 32.89, 13.19},
    {u"Benghazi", 32.12, 20.07}, {u"Tunis", 36.81, 10.18}, {u"Sfax", 34.74, 10.76}, {u"Algiers", 36.75, 3.06},
    {u"Oran", 35.70, -0.63}, {u"Constantine", 36.37, 6.61}, {u"Casablanca", 33.57, -7.59}, {u"Rabat", 34.02, -6.84},
    {u"Marrakesh", 31.63, -8.00}, {u"Fez", 34.03, -5.00}, {u"Tangier", 35.77, -5.80}, {u"Nouakchott", 18.08, -15.98},
    {u"Dakar", 14.69, -17.45}, {u"Banjul", 13.45, -16.58}, {u"Bamako", 12.64, -8.00}, {u"Conakry", 9.54, -13.68},
    {u"Freetown", 8.48, -13.23}, {u"Monrovia", 6.30, -10.80}, {u"Abidjan", 5.36, -4.01}, {u"Accra", 5.60, -0.19},
    {u"Kumasi", 6.69, -1.62}, {u"Lomé", 6.13, 1.22}, {u"Cotonou", 6.37, 2.43}, {u"Ouagadougou", 12.37, -1.52},
    {u"Niamey", 13.51, 2.11}, {u"Lagos", 6.52, 3.38}, {u"Abuja", 9.06, 7.50}, {u"Kano", 12.00, 8.52},
    {u"Ibadan", 7.38, 3.95}, {u"Port Harcourt", 4.82, 7.05}, {u"N'Djamena", 12.13, 15.06}, {u"Douala", 4.05, 9.70},
    {u"Yaoundé", 3.87, 11.52}, {u"Libreville", 0.42, 9.47}, {u"Brazzaville", -4.26, 15.24}, {u"Kinshasa", -4.44, 15.27},
    {u"Lubumbashi", -11.66, 27.48}, {u"Luanda", -8.84, 13.23}, {u"Khartoum", 15.50, 32.56}, {u"Asmara", 15.32, 38.93},
    {u"Addis Ababa", 9.03, 38.74}, {u"Djibouti", 11.59, 43.15}, {u"Mogadishu", 2.05, 45.32}, {u"Hargeisa", 9.56, 44.06},
    {u"Nairobi", -1.29, 36.82}, {u"Mombasa", -4.04, 39.67}, {u"Kampala", 0.35, 32.58}, {u"Kigali", -1.94, 30.06},
    {u"Bujumbura", -3.38, 29.36}, {u"Dar es Salaam", -6.79, 39.21}, {u"Dodoma", -6.16, 35.75},
    {u"Lusaka", -15.39, 28.32}, {u"Harare", -17.83, 31.05}, {u"Bulawayo", -20.15, 28.58}, {u"Lilongwe", -13.96, 33.77},
    {u"Blantyre", -15.79, 35.01}, {u"Maputo", -25.97, 32.57}, {u"Beira", -19.83, 34.84}, {u"Windhoek", -22.56, 17.08},
    {u"Gaborone", -24.63, 25.92}, {u"Johannesburg", -26.20, 28.05}, {u"Pretoria", -25.75, 28.19},
    {u"Cape Town", -33.92, 18.42}, {u"Durban", -29.86, 31.02}, {u"Port Elizabeth", -33.96, 25.60},
    {u"Bloemfontein", -29.09, 26.16}, {u"Maseru", -29.31, 27.48}, {u"Mbabane", -26.31, 31.14},
    {u"Antananarivo", -18.88, 47.51}, {u"Port Louis", -20.16, 57.50}, {u"Saint-Denis", -20.88, 55.45},
    {u"Victoria", -4.62, 55.45}, {u"Praia", 14.93, -23.51}, {u"Sydney", -33.87, 151.21}, {u"Melbourne", -37.81, 144.96},
    {u"Brisbane", -27.47, 153.03}, {u"Perth", -31.95, 115.86}, {u"Adelaide", -34.93, 138.60},
    {u"Gold Coast", -28.02, 153.40}, {u"Newcastle", -32.93, 151.78}, {u"Canberra", -35.28, 149.13},
    {u"Hobart", -42.88, 147.33}, {u"Darwin", -12.46, 130.84}, {u"Cairns", -16.92, 145.77},
    {u"Townsville", -19.26, 146.82}, {u"Alice Springs", -23.70, 133.88}, {u"Auckland", -36.85, 174.76},
    {u"Wellington", -41.29, 174.78}, {u"Christchurch", -43.53, 172.64}, {u"Hamilton", -37.79, 175.28},
    {u"Dunedin", -45.87, 170.50}, {u"Port Moresby", -9.44, 147.18}, {u"Suva", -18.12, 178.45},
    {u"Nouméa", -22.27, 166.44}, {u"Papeete", -17.54, -149.57}, {u"Apia", -13.83, -171.77},
    {u"Honolulu", 21.31, -157.86}, {u"New York", 40.71, -74.01}, {u"Los Angeles", 34.05, -118.24},
    {u"Chicago", 41.88, -87.63}, {u"Houston", 29.76, -95.37}, {u"Phoenix", 33.45, -112.07},
    {u"Philadelphia", 39.95, -75.17}, {u"San Antonio", 29.42, -98.49}, {u"San Diego", 32.72, -117.16},
    {u"Dallas", 32.78, -96.80}, {u"Fort Worth", 32.76, -97.33}, {u"Austin", 30.27, -97.74},
    {u"San Jose", 37.34, -121.89}, {u"San Francisco", 37.77, -122.42}, {u"Oakland", 37.80, -122.27},
    {u"Sacramento", 38.58, -121.49}, {u"Fresno", 36.74, -119.79}, {u"Jacksonville", 30.33, -81.66},
    {u"Miami", 25.76, -80.19}, {u"Orlando", 28.54, -81.38}, {u"Tampa", 27.95, -82.46}, {u"Columbus", 39.96, -83.00},
    {u"Cleveland", 41.50, -81.69}, {u"Cincinnati", 39.10, -84.51}, {u"Indianapolis", 39.77, -86.16},
    {u"Detroit", 42.33, -83.05}, {u"Charlotte", 35.23, -80.84}, {u"Raleigh", 35.78, -78.64},
    {u"Atlanta", 33.75, -84.39}, {u"Savannah", 32.08, -81.09}, {u"Charleston", 32.78, -79.93},
    {u"Nashville", 36.16, -86.78}, {u"Memphis", 35.15, -90.05}, {u"Louisville", 38.25, -85.76},
    {u"Birmingham", 33.52, -86.80}, {u"New Orleans", 29.95, -90.07}, {u"Washington", 38.91, -77.04},
    {u"Baltimore", 39.29, -76.61}, {u"Richmond", 37.54, -77.44}, {u"Norfolk", 36.85, -76.29},
    {u"Pittsburgh", 40.44, -80.00}, {u"Boston", 42.36, -71.06}, {u"Providence", 41.82, -71.41},
    {u"Hartford", 41.76, -72.67}, {u"Portland", 43.66, -70.26}, {u"Albany", 42.65, -73.75}, {u"Buffalo", 42.89, -78.88},
    {u"Rochester", 43.16, -77.61}, {u"Milwaukee", 43.04, -87.91}, {u"Madison", 43.07, -89.40},
    {u"Minneapolis", 44.98, -93.27}, {u"Des Moines", 41.59, -93.62}, {u"St. Louis", 38.63, -90.20},
    {u"Kansas City", 39.10, -94.58}, {u"Omaha", 41.26, -95.94}, {u"Oklahoma City", 35.47, -97.52},
    {u"Tulsa", 36.15, -95.99}, {u"Little Rock", 34.75, -92.29}, {u"Wichita", 37.69, -97.34}, {u"Fargo", 46.88, -96.79},
    {u"Denver", 39.74, -104.99}, {u"Colorado Springs", 38.83, -104.82}, {u"Albuquerque", 35.08, -106.65},
    {u"El Paso", 31.76, -106.49}, {u"Tucson", 32.22, -110.97}, {u"Las Vegas", 36.17, -115.14},
    {u"Reno", 39.53, -119.81}, {u"Salt Lake City", 40.76, -111.89}, {u"Boise", 43.62, -116.20},
    {u"Billings", 45.78, -108.50}, {u"Spokane", 47.66, -117.43}, {u"Seattle", 47.61, -122.33},
    {u"Portland", 45.52, -122.68}, {u"Anchorage", 61.22, -149.90}, {u"Fairbanks", 64.84, -147.72},
    {u"Juneau", 58.30, -134.42}, {u"Toronto", 43.65, -79.38}, {u"Montréal", 45.50, -73.57},
    {u"Vancouver", 49.28, -123.12}, {u"Calgary", 51.05, -114.07}, {u"Edmonton", 53.55, -113.49},
    {u"Ottawa", 45.42, -75.70}, {u"Winnipeg", 49.90, -97.14}, {u"Québec", 46.81, -71.21}, {u"Hamilton", 43.26, -79.87},
    {u"London", 42.98, -81.25}, {u"Halifax", 44.65, -63.58}, {u"Saskatoon", 52.13, -106.67},
    {u"Regina", 50.45, -104.62}, {u"Victoria", 48.43, -123.37}, {u"St. John's", 47.56, -52.71},
    {u"Whitehorse", 60.72, -135.06}, {u"Yellowknife", 62.45, -114.37}, {u"Nuuk", 64.18, -51.72},
    {u"Mexico City", 19.43, -99.13}, {u"Guadalajara", 20.67, -103.35}, {u"Monterrey", 25.69, -100.32},
    {u"Puebla", 19.04, -98.20}, {u"Tijuana", 32.51, -117.04}, {u"León", 21.12, -101.68},
    {u"Ciudad Juárez", 31.69, -106.42}, {u"Mérida", 20.97, -89.62}, {u"Cancún", 21.16, -86.85},
    {u"Querétaro", 20.59, -100.39}, {u"Chihuahua", 28.63, -106.08}, {u"Guatemala City", 14.63, -90.51},
    {u"San Salvador", 13.69, -89.22}, {u"Tegucigalpa", 14.07, -87.19}, {u"Managua", 12.11, -86.24},
    {u"San José", 9.93, -84.08}, {u"Panama City", 8.98, -79.52}, {u"Havana", 23.11, -82.37},
    {u"Santiago de Cuba", 20.02, -75.82}, {u"Kingston", 17.97, -76.79}, {u"Port-au-Prince", 18.54, -72.34},
    {u"Santo Domingo", 18.49, -69.93}, {u"San Juan", 18.47, -66.11}, {u"Nassau", 25.05, -77.35},
    {u"Bridgetown", 13.10, -59.62}, {u"Port of Spain", 10.66, -61.51}, {u"Hamilton", 32.29, -64.78},
    {u"Bogotá", 4.71, -74.07}, {u"Medellín", 6.24, -75.58}, {u"Cali", 3.45, -76.53}, {u"Barranquilla", 10.97, -74.80},
    {u"Cartagena", 10.39, -75.51}, {u"Caracas", 10.48, -66.90}, {u"Maracaibo", 10.65, -71.64},
    {u"Valencia", 10.16, -68.00}, {u"Georgetown", 6.80, -58.16}, {u"Paramaribo", 5.85, -55.20},
    {u"Cayenne", 4.92, -52.31}, {u"Quito", -0.18, -78.47}, {u"Guayaquil", -2.17, -79.92}, {u"Lima", -12.05, -77.04},
    {u"Arequipa", -16.41, -71.54}, {u"Cusco", -13.53, -71.97}, {u"Trujillo", -8.11, -79.03},
    {u"La Paz", -16.49, -68.12}, {u"Santa Cruz", -17.78, -63.18}, {u"Cochabamba", -17.39, -66.16},
    {u"Asunción", -25.26, -57.58}, {u"Montevideo", -34.90, -56.16}, {u"Buenos Aires", -34.60, -58.38},
    {u"Córdoba", -31.42, -64.18}, {u"Rosario", -32.95, -60.64}, {u"Mendoza", -32.89, -68.84},
    {u"La Plata", -34.92, -57.95}, {u"Mar del Plata", -38.00, -57.56}, {u"Salta", -24.79, -65.41},
    {u"Tucumán", -26.82, -65.22}, {u"Bariloche", -41.13, -71.31}, {u"Ushuaia", -54.80, -68.30},
    {u"Santiago", -33.45, -70.67}, {u"Valparaíso", -33.05, -71.62}, {u"Concepción", -36.83, -73.05},
    {u"Antofagasta", -23.65, -70.40}, {u"Punta Arenas", -53.16, -70.91}, {u"São Paulo", -23.55, -46.63},
    {u"Rio de Janeiro", -22.91, -43.17}, {u"Brasília", -15.79, -47.88}, {u"Salvador", -12.97, -38.50},
    {u"Fortaleza", -3.73, -38.53}, {u"Belo Horizonte", -19.92, -43.94}, {u"Manaus", -3.12, -60.02},
    {u"Curitiba", -25.43, -49.27}, {u"Recife", -8.05, -34.88}, {u"Porto Alegre", -30.03, -51.23},
    {u"Belém", -1.46, -48.50}, {u"Goiânia", -16.69, -49.26}, {u"Campinas", -22.91, -47.06},
    {u"São Luís", -2.53, -44.30}, {u"Maceió", -9.67, -35.74}, {u"Natal", -5.79, -35.21},
    {u"João Pessoa", -7.12, -34.86}, {u"Florianópolis", -27.60, -48.55}, {u"Cuiabá", -15.60, -56.10},
    {u"Campo Grande", -20.47, -54.62}, {u"Teresina", -5.09, -42.80}, {u"Vitória", -20.32, -40.34}});

/// Kilometres along the great circle (haversine formula).
double distance(const City& city, double latitude, double longitude)
{
    constexpr double degree = std::numbers::pi / 180;
    const auto haversine = [](double degrees) { return std::pow(std::sin(degrees * degree / 2), 2); };
    const double chord = haversine(city.latitude - latitude)
        + std::cos(city.latitude * degree) * std::cos(latitude * degree) * haversine(city.longitude - longitude);
    return earthDiameter * std::asin(std::min(1.0, std::sqrt(chord)));
}

} // namespace

std::optional<QString> nearestCity(double latitude, double longitude)
{
    const auto* nearest =
        std::ranges::min_element(cities, {}, [=](const City& city) { return distance(city, latitude, longitude); });
    if (!(distance(*nearest, latitude, longitude) <= farthest))
        return std::nullopt;
    return nearest->name.toString();
}

std::optional<CityPosition> positionOf(QStringView city)
{
    const auto* found = std::ranges::find(cities, city, &City::name);
    if (found == cities.end())
        return std::nullopt;
    return CityPosition{found->latitude, found->longitude};
}

} // namespace ambrelle
